#include "import/ov2_import.h"

#include "base/failure.h"
#include "import/ov2_record.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <set>
#include <span>

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

bool ConvertOv2File(const ImportTask& task, std::string_view sourcePath, std::string_view targetPath) {
    try {
        const bool hasDirections = task.sourceStructure == 2 || task.sourceStructure == 3;
        const auto files = task.services.fileSystem.CreateFileSystemObject();
        const auto target = CreateCameraFile(*files, targetPath, task.sourceStructure);
        const auto source = task.services.hostFiles.OpenBytes(sourcePath);
        const bool isSound = WriteRecords(*source, *target, hasDirections ? ", 0, 0" : "");
        target->Close();
        return isSound;
    } catch (const std::exception&) {
        TraceFailure("convert an OV2 source", sourcePath);
        return false;
    }
}

void RemoveTarget(const ImportTask& task, std::string_view path) {
    try {
        const auto files = task.services.fileSystem.CreateFileSystemObject();
        if (files->FileExists(path)) files->DeleteFile(path);
    } catch (const std::exception&) {
        TraceFailure("delete an incomplete camera file", path);
        // What cannot be deleted stays, and counts as a camera file.
    }
}

/// All files of the source folder; none when there is anything wrong with one of the folders.
std::vector<std::string> ReadableSourceFiles(const ImportTask& task) {
    try {
        std::vector<std::string> names = SourceFiles(task);
        if (!names.empty()) task.services.fileSystem.CreateFileSystemObject()->GetFolder(task.targetFolder);
        return names;
    } catch (const std::exception&) {
        TraceFailure("list the OV2 sources", task.sourceFolder);
        return {};
    }
}

}  // namespace

std::int16_t ConvertOv2Files(const ImportTask& task) {
    std::int16_t failed = 0;
    std::set<std::string> written;
    for (const std::string& name : ReadableSourceFiles(task)) {
        if (task.progress.StopRequested()) break;
        if (!HasExtension(name, kSourceExtension)) continue;
        const std::string baseName = name.substr(0, name.size() - kSourceExtension.size());
        const std::string targetPath = task.targetFolder + baseName + ".asc";
        // Sources that differ in the case of their extensions only have one target: the first one keeps it.
        const bool isTaken = written.count(targetPath) > 0;
        if (!isTaken && ConvertOv2File(task, task.sourceFolder + name, targetPath)) {
            written.insert(targetPath);
        } else {
            if (failed < std::numeric_limits<std::int16_t>::max()) ++failed;
            if (!isTaken) RemoveTarget(task, targetPath);
        }
        task.progress.FileDone();
    }
    return failed;
}

}  // namespace halvenmoor
