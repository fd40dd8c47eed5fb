#pragma once

#include "catalogue/frmMain.h"
#include "core/camera_files.h"
#include "core/modMain.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// The first line of a target file.
inline constexpr std::string_view kTargetHeader = "X,Y,TYPE,SPEED,DirType,Direction";

/// One camera file of an export.
struct ExportFile {
    std::string path;
    /// The type of the list that holds the file.
    int type = 0;
    std::string speed;
};

/// The exports: the files of the present one and the counters of the last run.
class modExport {
public:
    explicit modExport(frmMain& mainForm) : mainForm_(mainForm), core_(mainForm.Core()) {}

    std::vector<ExportFile> ExportFileTable;
    // Counters of the last run, finished or not, by type; index 0 stays 0.
    TypeTable<std::int32_t> FilesProcessed{};
    TypeTable<std::int32_t> CamerasExported{};
    TypeTable<std::int32_t> CamerasSkipped{};
    /// The results of the last run were to be saved and could not be.
    bool ResultsFileFailed = false;

    modMain& Core() const { return core_; }

    /// Connects the buttons of the main window that belong to the export.
    void AttachButtons();

    /// Exports the files of the type lists to the target that the export mode and the user choose. True when
    /// the export ran; resultsValid is written only then, and tells whether it reached its end.
    bool ExportSpeedCameras(bool& resultsValid);
    /// Fills ExportFileTable. True when at least one file of the type lists exists.
    bool BuildExportFileList();
    /// Whether the file begins with the header of a target file.
    bool IsSpeedCameraTextFile(std::string_view path) const;

private:
    void ExportCamerasClicked();
    void ShowResults();
    std::string EndWords() const;
    bool ChooseTarget(std::string& path) const;
    void AddFilesOfType(int type, const CameraFiles& files);

    frmMain& mainForm_;
    modMain& core_;
};

}  // namespace halvenmoor
