#pragma once

#include "export/camera_line.h"
#include "export/modExport.h"
#include "export/name_patterns.h"
#include "platform/files.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor {

/// One run that turns camera files into a target file. A line of the target is
///
///     X "," Y "," TYPE "," SPEED "," DirType "," Direction CR LF
///
/// with X and Y character for character as in the camera file. Every failure leaves as an exception; what was
/// written until then stays in the target.
class ExportRun {
public:
    /// Opens the target: for appending, or as a new file with the header line.
    ExportRun(modExport& exports, std::string_view targetFile);

    /// Exports the records of one file.
    void Run(const ExportFile& file);
    /// Brings the target to the medium; may take seconds. May run beside the thread of the windows.
    void Sync() { target_->Sync(); }
    void Finish() { target_->Close(); }

private:
    void ExportLine(std::string_view line, int typeOfList);
    int TypeOf(std::string_view cameraName, int typeOfList);
    void WriteCamera(const FieldList& fields, int type);

    modExport& exports_;
    const cSettingsClass& settings_;
    const std::unique_ptr<platform::FileSystemObject> files_;
    std::unique_ptr<platform::TextWriter> target_;
    std::optional<NamePatterns> namePatterns_;
    /// The two columns of the present file with the commas around them, by type.
    TypeTable<std::string> typeAndSpeed_;
    FieldList fields_;
};

}  // namespace halvenmoor
