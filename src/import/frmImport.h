#pragma once

#include "catalogue/frmMain.h"
#include "import/import_task.h"
#include "ui/layouts/frmImportLayout.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace halvenmoor {

/// The import dialog. It empties the camera folder and converts all sources of one kind into it, at most
/// once. The enabled buttons are its state: Start when ready, only Cancel while it runs, Finish when done.
class frmImport : public frmImportLayout, private ImportProgress {
public:
    explicit frmImport(frmMain& mainForm);

    /// Whether the camera folder was emptied, so that the lists are out of date.
    bool FilesModified() const { return filesModified_; }

protected:
    void Load() override;
    void Paint() override;
    bool QueryClose(forms::CloseReason reason) override;

private:
    /// How the dialog shows the folders. The counts of the running import leave its picture as it is.
    enum class Display { Counts = 1, Ready = 2, Finished = 3, Incomplete = 4 };

    void Yield() override { Owner().YieldIfDue(); }
    bool StopRequested() const override;
    void FileDone() override;
    void RecordsAdded(std::int32_t count) override;

    void ApplyImportTexts();
    void ChooseSource(int option);
    void StartImport();
    void RunImport();
    bool ConvertSources();
    void SyncTarget() const;
    bool ConvertOv2(const ImportTask& task);
    bool ConvertTxt(const ImportTask& task);
    bool IsNeeded(platform::FileSystemObject& files, const std::string& path) const;
    bool DeleteAllFiles(const std::string& folder) const;
    std::int32_t CountFiles(const std::string& folder, std::string_view extension) const;
    void UpdateDisplay(Display display);
    void ShowSource();
    void ShowPicture(Display display, std::int32_t targetFileCount);
    std::string EndWords() const;

    /// The path of a folder of the workspace, with a separator at its end.
    std::string Folder(std::initializer_list<std::string_view> words) const;
    std::string SourceFolder() const;
    std::string TargetFolder() const { return Folder({"asc"}); }

    frmMain& mainForm_;
    modMain& core_;
    bool filesModified_ = false;
    int sourceOption_ = 1;
    bool stopRequested_ = false;
    std::int32_t sourceFileCount_ = 0;
    // Read once, since the counts that they follow change many times in a run.
    std::string filesWord_;
    std::string camerasWord_;
};

}  // namespace halvenmoor
