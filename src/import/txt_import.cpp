#include "import/txt_import.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/numbers.h"
#include "base/text/trim.h"

#include <algorithm>
#include <array>
#include <exception>

namespace halvenmoor {

namespace {

constexpr int kRedLight = 3;

/// The label of the added records is updated each time so many more were read.
constexpr std::int32_t kRecordsPerRefresh = 97;

constexpr std::size_t kShortRecord = 4;
constexpr std::size_t kFullRecord = 6;

/// The fields of a line. Lines have no quotes, so each comma separates.
struct TxtFields {
    std::array<std::string_view, kFullRecord> fields;
    /// One more than the array holds when the line has too many.
    std::size_t count = 0;

    std::string_view operator[](std::size_t index) const { return text::Trim(fields[index]); }
};

TxtFields SplitTxtLine(std::string_view line) {
    TxtFields split;
    line = text::Trim(line);
    if (line.empty()) return split;
    while (split.count < kFullRecord) {
        const std::size_t comma = line.find(',');
        split.fields[split.count++] = line.substr(0, comma);
        if (comma == std::string_view::npos) return split;
        line.remove_prefix(comma + 1);
    }
    ++split.count;
    return split;
}

/// The camera type that a TYPE field selects, 0 when it selects none.
int TypeOf(std::string_view field) {
    const bool isType = field.size() == 1 && field[0] >= '0' + kFirstType && field[0] <= '0' + kLastType;
    return isType ? field[0] - '0' : 0;
}

TxtRecord RecordOf(const TxtFields& fields, int type) {
    const bool isFull = fields.count == kFullRecord;
    TxtRecord record{fields[0], fields[1], fields[3], isFull ? fields[4] : "0", isFull ? fields[5] : "0"};
    if (type == kRedLight) record.speed = "0";
    if (record.dirType == "0") record.direction = "0";
    return record;
}

/// A speed as camera files have it in their names: whole, with at least three digits. A half goes to the even
/// neighbour.
std::string SpeedInFileName(double speed) {
    constexpr double kMaxWhole = 999'999'999'999'999;
    constexpr std::size_t kMinDigits = 3;
    const long long whole = text::RoundHalfEven(std::clamp(speed, -kMaxWhole, kMaxWhole));
    const std::string digits = std::to_string(whole < 0 ? -whole : whole);
    const std::size_t zeros = kMinDigits - std::min(kMinDigits, digits.size());
    return (whole < 0 ? "-" : "") + std::string(zeros, '0') + digits;
}

/// Writes records into camera files of one type.
class RecordWriter {
public:
    RecordWriter(std::string_view typeWord, int sourceStructure)
        : nameField_(std::string(", \"").append(typeWord).append(" Camera\"")),
          sourceStructure_(sourceStructure) {}

    void Write(platform::TextWriter& file, const SpeedRecords& records) {
        records.ForEach([&](const TxtRecord& record) {
            line_.assign(record.x).append(", ").append(record.y).append(nameField_);
            if (sourceStructure_ == 2) AppendExtensions(record.dirType, record.direction);
            if (sourceStructure_ == 3) AppendExtensions(record.direction, record.dirType);
            file.WriteLine(line_);
        });
    }

private:
    void AppendExtensions(std::string_view first, std::string_view second) {
        line_.append(", ").append(first).append(", ").append(second);
    }

    std::string nameField_;
    int sourceStructure_;
    std::string line_;
};

}  // namespace

void TxtImport::ReadTxtFiles() {
    std::vector<std::string> names;
    try {
        names = SourceFiles(task_);
    } catch (const std::exception&) {
        TraceFailure("list the TXT sources", task_.sourceFolder);
        return;
    }
    for (const std::string& name : names) {
        task_.progress.Yield();
        if (task_.progress.StopRequested()) return;
        if (text::EndsWithIgnoringAsciiCase(name, ".txt")) ReadTxtFile(task_.sourceFolder + name);
    }
}

void TxtImport::ReadTxtFile(const std::string& path) {
    try {
        const auto file = task_.services.fileSystem.CreateFileSystemObject()->OpenTextFile(path);
        ReadLines(*file);
        task_.progress.RecordsAdded(addedRecords_);
        file->Close();
    } catch (const std::exception&) {
        TraceFailure("read a TXT source", path);
        ++failedFiles_;
        // The records taken so far stay; the rest of the file is lost.
    }
}

void TxtImport::ReadLines(platform::TextReader& file) {
    while (!file.AtEndOfStream()) {
        task_.progress.Yield();
        if (task_.progress.StopRequested()) return;
        TakeLine(file.ReadLine());
        if (addedRecords_ - shownRecords_ < kRecordsPerRefresh) continue;
        task_.progress.RecordsAdded(addedRecords_);
        shownRecords_ = addedRecords_;
        task_.progress.Yield();
    }
}

void TxtImport::TakeLine(std::string_view line) {
    const TxtFields fields = SplitTxtLine(line);
    if (fields.count != kShortRecord && fields.count != kFullRecord) return;
    const std::string_view typeField = fields[2];
    if (const int type = TypeOf(typeField); type != 0) {
        Records(type).Add(RecordOf(fields, type), task_.services.locale.CodePage());
        addedRecords_ = text::CheckedAdd(addedRecords_, 1);
    } else if (!text::EqualIgnoringAsciiCase(typeField, "TYPE")) {
        badLines_ = text::CheckedAdd(badLines_, 1);
    }
}

void TxtImport::CollectAllSpeeds() {
    for (int type = kFirstType; type <= kLastType; ++type) {
        if (task_.progress.StopRequested()) return;
        CollectSpeeds(Records(type));
    }
}

void TxtImport::CollectSpeeds(TypeRecords& records) {
    // The records were grouped by speed as they were read. This loop only yields, once for each record, so
    // that the user can stop the import before its first file is written.
    for (std::int32_t i = 0; i < records.Count(); ++i) {
        task_.progress.Yield();
        if (task_.progress.StopRequested()) return;
    }
    records.SortSpeeds();
}

void TxtImport::WriteAllTypes() {
    for (int type = kFirstType; type <= kLastType; ++type) {
        if (task_.progress.StopRequested()) return;
        try {
            WriteTypeFiles(type);
        } catch (const std::exception&) {
            TraceFailure("write the camera files of a type", kTypeWords[static_cast<std::size_t>(type)]);
            ++failedFiles_;
            // The speeds of this type that are not written yet are lost.
        }
    }
}

void TxtImport::WriteTypeFiles(int type) {
    const std::string_view typeWord = kTypeWords[static_cast<std::size_t>(type)];
    const auto files = task_.services.fileSystem.CreateFileSystemObject();
    if (!files->FolderExists(task_.targetFolder)) return;
    const auto folder = files->GetFolder(task_.targetFolder);
    RecordWriter writer(typeWord, task_.sourceStructure);
    const std::vector<SpeedRecords>& speeds = Records(type).Speeds();
    for (auto speed = speeds.begin(); speed != speeds.end();) {
        task_.progress.Yield();
        if (task_.progress.StopRequested()) return;
        const std::string speedInName = SpeedInFileName(speed->Number());
        const auto file = folder->CreateTextFile(std::string(typeWord) + "_Camera_" + speedInName + ".asc");
        WriteCameraFileHeader(*file, task_.sourceStructure);
        // Speeds that have one file name are neighbours, since they stand in the order of their numbers.
        do writer.Write(*file, *speed++);
        while (speed != speeds.end() && SpeedInFileName(speed->Number()) == speedInName);
        file->Close();
        task_.progress.FileDone();
    }
}

}  // namespace halvenmoor
