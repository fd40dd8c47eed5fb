#include "export/modExport.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/trim.h"
#include "export/file_name_speed.h"
#include "export/frmExport.h"
#include "export/frmResults.h"
#include "export/modSaveOpen.h"
#include "ui/language/cNamesClass.h"

#include <exception>
#include <numeric>
#include <optional>

namespace halvenmoor {

void modExport::AttachButtons() {
    mainForm_.ButtonExportCameras.OnClick = [this] { ExportCamerasClicked(); };
    mainForm_.ButtonShowResults.OnClick = [this] { ShowResults(); };
}

void modExport::ExportCamerasClicked() {
    const bool ran = ExportSpeedCameras(mainForm_.ResultsValid);
    if (ran) core_.Desktop().Announce(EndWords());
    if (ran && mainForm_.ResultsValid && core_.ReadSetting("ShowResults", "1") == "1") ShowResults();
    mainForm_.UpdateButtons(false);
}

void modExport::ShowResults() {
    frmResults window(*this);
    core_.Desktop().ShowModal(window);
}

/// What a screen reader says at the end: whether all went well, and the totals.
std::string modExport::EndWords() const {
    const cNamesClass& names = *core_.Names;
    const bool appended = core_.ExportMode == kAppendToFile;
    const auto total = [](const std::string& heading, const TypeTable<std::int32_t>& counter) {
        return ", " + heading + ": " + std::to_string(std::accumulate(counter.begin(), counter.end(), 0LL));
    };
    return (appended ? names.TitleAppendSpeedCameras() : names.TitleExportSpeedCameras()) +
           (mainForm_.ResultsValid ? " \u2713" : " \u2717") +
           total(names.LabelFilesProcessed(), FilesProcessed) +
           total(appended ? names.LabelAppendedCameras() : names.LabelExportedCameras(), CamerasExported) +
           total(names.LabelSkippedCameras(), CamerasSkipped);
}

bool modExport::ExportSpeedCameras(bool& resultsValid) {
    if (!BuildExportFileList()) return false;
    const std::int16_t mode = core_.ExportMode;
    std::string target;
    if (!ChooseTarget(target)) return false;
    // The dialogs let waiting events in. One of those may have been an export of its own, or a change of the
    // mode, and a file that was chosen to be appended to must not be replaced.
    if (ExportFileTable.empty() || core_.ExportMode != mode) return false;
    frmExport window(*this);
    window.SetExportFileName(std::move(target));
    core_.Desktop().ShowModal(window);
    resultsValid = window.ExportResultsValid();
    return true;
}

bool modExport::ChooseTarget(std::string& path) const {
    if (core_.ExportMode == kReplaceFile) {
        path = core_.TargetFolder() + std::string(kTargetBaseName) + ".txt";
        return true;
    }
    if (core_.ExportMode == kSaveFileAs) return ShowSaveAsDialogue(core_, path);
    if (!ShowAppendDialogue(core_, path)) return false;
    if (IsSpeedCameraTextFile(path)) return true;
    core_.Services().messages.Show(
        "Selected file is not a valid 'iGO 2006SE Plus' speed camera file.          ",
        "Append To Existing Speed Camera File");
    return false;
}

bool modExport::BuildExportFileList() {
    ExportFileTable.clear();
    try {
        const CameraFiles files(core_.Services().hostFiles, core_.CameraFolder());
        for (int type = kFirstType; type <= kLastType; ++type) AddFilesOfType(type, files);
    } catch (const std::exception&) {
        TraceFailure("list the files of the export");
        return false;
    }
    return !ExportFileTable.empty();
}

void modExport::AddFilesOfType(int type, const CameraFiles& files) {
    const forms::ListBox& list = mainForm_.TypeList[type];
    for (int i = 0; i < list.ListCount(); ++i) {
        std::optional<std::string> path = files.FileOf(list.List(i));
        if (!path) continue;
        std::string speed = SpeedFromFileName(
            list.List(i), core_.ClassificationSettings->UnitSearchPatterns(), core_.Services().locale);
        ExportFileTable.push_back({*std::move(path), type, std::move(speed)});
    }
}

bool modExport::IsSpeedCameraTextFile(std::string_view path) const {
    try {
        const auto file = core_.Services().fileSystem.CreateFileSystemObject()->OpenTextFile(path);
        const bool isHeader = text::EqualIgnoringAsciiCase(text::Trim(file->ReadLine()), kTargetHeader);
        file->Close();
        return isHeader;
    } catch (const std::exception&) {
        TraceFailure("read the first line of a target", path);
        return false;
    }
}

}  // namespace halvenmoor
