#include "import/ov2_import.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "import/ov2_record.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace halvenmoor {

namespace {

constexpr std::string_view kSourceExtension = ".ov2";

/// The records of a file, read piece by piece.
class RecordReader {
public:
    explicit RecordReader(platform::ByteReader& file) : file_(file), buffer_(kPiece, '\0') {}

    /// Valid until the next call. The end of the file shows as a cut record.
    Ov2Record Next() {
        Ov2Record record = Decode();
        while (record.kind == Ov2Record::Kind::Cut && ReadOn(record.size)) record = Decode();
        if (record.kind != Ov2Record::Kind::Cut) begin_ += record.size;
        return record;
    }

private:
    static constexpr std::size_t kPiece = 64 * 1024;

    Ov2Record Decode() const { return DecodeOv2Record(std::string_view(buffer_).substr(0, end_), begin_); }

    /// Reads on until the unread bytes are at least `size`, which is more than there are now. False when the
    /// file has no such number of bytes: memory is taken only after that is known.
    bool ReadOn(std::size_t size) {
        const std::size_t unread = end_ - begin_;
        if (size - unread > file_.Remaining()) return false;
        std::copy_n(buffer_.data() + begin_, unread, buffer_.data());
        if (buffer_.size() < size) buffer_.resize(size);
        begin_ = 0;
        end_ = unread + file_.Read(std::span(buffer_).subspan(unread));
        return end_ >= size;
    }

    platform::ByteReader& file_;
    std::string buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
};

/// False when the source has a record that no OV2 file can have.
bool WriteRecords(platform::ByteReader& source, platform::TextWriter& target, std::string_view suffix) {
    RecordReader records(source);
    std::string line;
    while (true) {
        const Ov2Record record = records.Next();
        switch (record.kind) {
            case Ov2Record::Kind::Deleted:
            case Ov2Record::Kind::Skipper:
                break;
            case Ov2Record::Kind::Point:
                line.clear();
                ScaleCoordinate(line, record.x);
                line += ", ";
                ScaleCoordinate(line, record.y);
                line += ", ";
                CleanPoiName(line, record.name);
                line += suffix;
                target.WriteLine(line);
                break;
            case Ov2Record::Kind::Other:
            case Ov2Record::Kind::BadLength:
                return false;
            case Ov2Record::Kind::Cut:
                return true;
        }
    }
}

void Remove(platform::Folder& folder, const std::string& name) {
    try {
        folder.Delete(name);
    } catch (const std::exception&) {
        TraceFailure("delete an incomplete camera file", name);
        // What cannot be deleted stays, and counts as a camera file.
    }
}

/// A file that fails leaves no target, and no file is deleted but the one made here.
bool ConvertOv2File(const ImportTask& task, const std::string& sourceName, platform::Folder& targetFolder,
                    const std::string& targetName) {
    std::unique_ptr<platform::TextWriter> target;
    try {
        const bool hasDirections = task.sourceStructure == 2 || task.sourceStructure == 3;
        target = targetFolder.CreateTextFile(targetName);
        WriteCameraFileHeader(*target, task.sourceStructure);
        const auto source = task.services.hostFiles.OpenBytes(task.sourceFolder + sourceName);
        const bool isSound = WriteRecords(*source, *target, hasDirections ? ", 0, 0" : "");
        target->Close();
        if (isSound) return true;
    } catch (const std::exception&) {
        TraceFailure("convert an OV2 source", sourceName);
    }
    if (!target) return false;
    target.reset();
    Remove(targetFolder, targetName);
    return false;
}

}  // namespace

std::int16_t ConvertOv2Files(const ImportTask& task) {
    std::vector<std::string> names;
    std::unique_ptr<platform::Folder> targetFolder;
    try {
        names = SourceFiles(task);
        targetFolder = task.services.fileSystem.CreateFileSystemObject()->GetFolder(task.targetFolder);
    } catch (const std::exception&) {
        TraceFailure("list the OV2 sources", task.sourceFolder);
        return 0;  // with anything wrong with one of the folders nothing is converted
    }
    std::int16_t failed = 0;
    std::unordered_set<std::string> written;  // the targets, as files are found: ignoring case
    for (const std::string& name : names) {
        if (task.progress.StopRequested()) break;
        if (!text::EndsWithIgnoringAsciiCase(name, kSourceExtension)) continue;
        const std::string target = name.substr(0, name.size() - kSourceExtension.size()) + ".asc";
        std::string key = text::FoldedKey(target, task.services.locale.CodePage());
        // Of sources that have one target the first one keeps it.
        const bool isWritten = written.count(key) == 0 && ConvertOv2File(task, name, *targetFolder, target);
        if (isWritten) written.insert(std::move(key));
        if (!isWritten && failed < std::numeric_limits<std::int16_t>::max()) ++failed;
        task.progress.FileDone();
    }
    return failed;
}

}  // namespace halvenmoor
