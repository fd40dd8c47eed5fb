#include "export/export_run.h"

#include "base/text/numbers.h"
#include "base/text/trim.h"

namespace halvenmoor {

namespace {

constexpr std::size_t kFieldsOfRecord = 3;
constexpr std::size_t kFieldsOfExtendedRecord = 5;

void CountOne(TypeTable<std::int32_t>& table, int type) {
    std::int32_t& counter = table[static_cast<std::size_t>(type)];
    counter = text::CheckedAdd(counter, 1);
}

}  // namespace

ExportRun::ExportRun(modExport& exports, std::string_view targetFile)
    : exports_(exports),
      settings_(*exports.Core().ClassificationSettings),
      files_(exports.Core().Services().fileSystem.CreateFileSystemObject()) {
    if (exports.Core().ExportMode == kAppendToFile) {
        target_ = files_->OpenForAppending(targetFile);
        return;
    }
    target_ = files_->CreateTextFile(targetFile);
    target_->WriteLine(kTargetHeader);
}

void ExportRun::Run(const ExportFile& file) {
    const auto source = files_->OpenTextFile(file.path);
    CountOne(exports_.FilesProcessed, file.type);
    for (int type = kFirstType; type <= kLastType; ++type) {
        typeAndSpeed_[static_cast<std::size_t>(type)] = "," + std::to_string(type) + "," + file.speed + ",";
    }
    while (!source->AtEndOfStream()) {
        ExportLine(text::StripComment(text::Trim(source->ReadLine())), file.type);
    }
    source->Close();
}

void ExportRun::ExportLine(std::string_view line, int typeOfList) {
    if (line.empty()) return;
    const FieldList& fields = fields_;
    const bool isSound = SplitCameraLine(fields_, line);
    if (!isSound || (fields.count != kFieldsOfRecord && fields.count != kFieldsOfExtendedRecord)) {
        if (fields.count >= 2) CountOne(exports_.CamerasSkipped, typeOfList);
        return;
    }
    const int type = TypeOf(fields[2], typeOfList);
    if (IsValidPosition(fields[0], fields[1])) {
        WriteCamera(fields, type);
        CountOne(exports_.CamerasExported, type);
    } else if (!IsZeroPosition(fields[0], fields[1])) {
        CountOne(exports_.CamerasSkipped, type);
    }
}

int ExportRun::TypeOf(std::string_view cameraName, int typeOfList) {
    if (!namePatterns_) {
        namePatterns_.emplace(settings_.TypeSearchPatterns(), exports_.Core().Services().locale.CodePage());
    }
    const int type = namePatterns_->NameMatchesAnyPattern(cameraName);
    return type != 0 ? type : typeOfList;
}

void ExportRun::WriteCamera(const FieldList& fields, int type) {
    std::string_view dirType = "0";
    std::string_view direction = "0";
    if (fields.count == kFieldsOfExtendedRecord && settings_.SourceStructure() == 2) {
        dirType = fields[3];
        direction = fields[4];
    } else if (fields.count == kFieldsOfExtendedRecord && settings_.SourceStructure() == 3) {
        dirType = fields[4];
        direction = fields[3];
    }
    const std::string& typeAndSpeed = typeAndSpeed_[static_cast<std::size_t>(type)];
    target_->WriteLine({fields[0], ",", fields[1], typeAndSpeed, dirType, ",", direction});
}

}  // namespace halvenmoor
