#include "import/frmImport.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "import/ov2_import.h"
#include "import/txt_import.h"
#include "ui/group_text_color.h"
#include "ui/language/cNamesClass.h"

#include <algorithm>
#include <array>
#include <exception>

namespace halvenmoor {

namespace {

constexpr forms::Point kOffsetInMainForm{1200, 1580};
constexpr forms::Color kRed = forms::Rgb(255, 0, 0);
constexpr std::string_view kCameraExtension = ".asc";

/// A kind of source, by its option button.
struct Source {
    std::string_view folderWord;
    std::string_view extension;
};
constexpr std::array<Source, 3> kSources{{{}, {"ov2", ".ov2"}, {"txt", ".txt"}}};
constexpr int kOv2 = 1;

const Source& SourceOf(int option) {
    return kSources[static_cast<std::size_t>(option)];
}

/// What an import left out. The cross keeps the number from reading like success.
std::string LeftOut(std::int32_t count, const std::string& word) {
    return count == 0 ? "" : "\u2717 " + CountOf(count, word);
}

}  // namespace

frmImport::frmImport(frmMain& mainForm)
    : frmImportLayout(mainForm.Core().Desktop()), mainForm_(mainForm), core_(mainForm.Core()) {
    CheckDelete.OnClick = [this] { CheckDelete.SetValue(true); };  // an import always deletes them
    for (int option = 1; option <= 2; ++option) {
        OptionSource[option].OnClick = [this, option] { ChooseSource(option); };
    }
    ButtonStart.OnClick = [this] { StartImport(); };
    ButtonCancel.OnClick = [this] { Unload(); };
    ButtonFinish.OnClick = [this] { Unload(); };
}

void frmImport::Load() {
    MoveTo(mainForm_.Position() + kOffsetInMainForm);
    ApplyImportTexts();
    UpdateDisplay(Display::Ready);
}

void frmImport::ApplyImportTexts() {
    const cNamesClass& names = *core_.Names;
    SetCaption(names.TitleImportFiles());
    FrameSelections.SetCaption(names.FrameSelections());
    LabelSourceName.SetCaption(names.LabelSourceFolder());
    LabelTargetName.SetCaption(names.LabelTargetFolder());
    FrameActions.SetCaption(names.FrameActions());
    CheckDelete.SetCaption(names.CheckDeleteExistingFiles() + " ...");
    OptionSource[1].SetCaption(names.OptionSourceOV2Files());
    OptionSource[2].SetCaption(names.OptionSourceTXTFiles());
    ButtonStart.SetCaption(names.ButtonStart());
    ButtonCancel.SetCaption(names.ButtonCancel());
    ButtonFinish.SetCaption(names.ButtonFinish());
    PictureNoDelete.SetAccessibleName(LabelTargetName.Caption());
    PictureDelete.SetAccessibleName(CheckDelete.Caption());
    PictureFinished.SetAccessibleName(Caption() + " \u2713");
    PictureIncomplete.SetAccessibleName(Caption() + " \u2717");
    filesWord_ = names.LabelNumberOfFiles();
    camerasWord_ = names.LabelNumberOfCameras();
    // A label without any name would be called by that of its frame.
    LabelAddedRecords.SetAccessibleName(camerasWord_ + "(s)");
}

void frmImport::Paint() {
    const forms::Color color = HeadingColor(core_.Services().theme);
    LabelSourceName.SetForeColor(color);
    LabelTargetName.SetForeColor(color);
}

bool frmImport::QueryClose(forms::CloseReason reason) {
    const bool isRunning = !ButtonStart.Enabled() && !ButtonFinish.Enabled();
    if (!isRunning) return true;
    stopRequested_ = true;
    return reason == forms::CloseReason::System;
}

void frmImport::ChooseSource(int option) {
    if (!ButtonStart.Enabled()) {
        OptionSource[sourceOption_].SetValue(true);
        return;
    }
    sourceOption_ = option;
    UpdateDisplay(Display::Ready);
}

void frmImport::StartImport() {
    ButtonStart.SetEnabled(false);
    SetCancelButton(nullptr);
    SetBusy(true);
    try {
        RunImport();
    } catch (const std::exception&) {
        TraceFailure("import");
        // Whatever failed, the user can close the dialog by Finish.
    }
    SetBusy(false);
    ButtonCancel.SetEnabled(false);
    ButtonFinish.SetEnabled(true);
    ButtonFinish.SetFocus();
    SetCancelButton(&ButtonFinish);
    if (IsOpen()) Owner().Announce(EndWords());
}

void frmImport::RunImport() {
    if (!DeleteAllFiles(TargetFolder())) return;
    filesModified_ = true;
    UpdateDisplay(Display::Ready);
    mainForm_.ClearListBoxes();
    UpdateDisplay(ConvertSources() ? Display::Finished : Display::Incomplete);
}

/// Whether nothing failed and nobody stopped it.
bool frmImport::ConvertSources() {
    const ImportTask task{core_.Services(), *this, SourceFolder(), TargetFolder(),
                          core_.ClassificationSettings->SourceStructure()};
    try {
        const bool isSound = sourceOption_ == kOv2 ? ConvertOv2(task) : ConvertTxt(task);
        SyncTarget();
        return isSound && !StopRequested();
    } catch (const std::exception&) {
        TraceFailure("convert the sources", task.sourceFolder);
        return false;
    }
}

/// Brings the camera files to the medium, before success is told.
void frmImport::SyncTarget() const {
    const auto folder = core_.Services().fileSystem.CreateFileSystemObject()->GetFolder(TargetFolder());
    Owner().Wait([&folder] { folder->Sync(); });
}

bool frmImport::ConvertOv2(const ImportTask& task) {
    const std::int16_t failedFiles = ConvertOv2Files(task);
    PictureIncomplete.SetToolTip(LeftOut(failedFiles, filesWord_));
    return failedFiles == 0;
}

bool frmImport::ConvertTxt(const ImportTask& task) {
    TxtImport import(task);
    if (!StopRequested()) import.ReadTxtFiles();
    if (!StopRequested()) UpdateDisplay(Display::Ready);
    if (!StopRequested()) import.CollectAllSpeeds();
    if (!StopRequested()) import.WriteAllTypes();
    const std::string files = LeftOut(import.FailedFiles(), filesWord_);
    const std::string cameras = LeftOut(import.BadLines(), camerasWord_);
    PictureFinished.SetToolTip(files);  // failed files alone do not make the import incomplete
    PictureIncomplete.SetToolTip(cameras + (cameras.empty() || files.empty() ? "" : ", ") + files);
    return import.BadLines() == 0;
}

/// Whether the camera folder is really one that must not be emptied: as a link it may lead anywhere.
bool frmImport::IsNeeded(platform::FileSystemObject& files, const std::string& path) const {
    const char separator = core_.Services().programInfo.Separator();
    std::vector<std::string> needed{Folder({"import", "ov2"}), Folder({"import", "txt"}), Folder({"txt"}),
                                    Folder({"demo"}), core_.LanguageFolder()};
    for (std::string folder = core_.Services().programInfo.ProgramFolder(); !folder.empty();) {
        needed.push_back(folder + separator);
        const std::size_t end = folder.rfind(separator);
        folder.resize(end == std::string::npos ? 0 : end);
    }
    needed.push_back(std::string(1, separator));
    return std::any_of(needed.begin(), needed.end(),
                       [&](const std::string& folder) { return files.IsSameFolder(path, folder); });
}

bool frmImport::DeleteAllFiles(const std::string& path) const {
    try {
        const auto files = core_.Services().fileSystem.CreateFileSystemObject();
        if (!files->FolderExists(path) || IsNeeded(*files, path)) return false;
        const auto folder = files->GetFolder(path);
        for (const std::string& name : folder->Files()) {
            try {
                folder->Delete(name);
            } catch (const std::exception&) {
                TraceFailure("delete a camera file", name);
                // The check below finds the files that could not be deleted.
            }
        }
        return folder->Files().empty();
    } catch (const std::exception&) {
        TraceFailure("empty the camera folder", path);
        return false;
    }
}

std::int32_t frmImport::CountFiles(const std::string& path, std::string_view extension) const {
    try {
        const auto files = core_.Services().fileSystem.CreateFileSystemObject();
        if (!files->FolderExists(path)) return 0;
        std::int32_t count = 0;
        for (const std::string& name : files->GetFolder(path)->Files()) {
            if (!IsHidden(name) && text::EndsWithIgnoringAsciiCase(name, extension)) ++count;
        }
        return count;
    } catch (const std::exception&) {
        TraceFailure("count files", path);
        return 0;
    }
}

void frmImport::UpdateDisplay(Display display) {
    const std::int32_t targetFileCount = CountFiles(TargetFolder(), kCameraExtension);
    if (display != Display::Counts) {
        ShowSource();
        ShowPicture(display, targetFileCount);
    }
    LabelSourceFiles.SetCaption(CountOf(sourceFileCount_, filesWord_));
    LabelTargetFiles.SetCaption(CountOf(targetFileCount, filesWord_));
    // Once red, the label stays red: the import is over.
    if (display == Display::Incomplete) LabelTargetFiles.SetForeColor(kRed);
    Owner().YieldIfDue();
}

void frmImport::ShowSource() {
    const Source& source = SourceOf(sourceOption_);
    LabelSourceFolder.SetCaption(
        std::string(".\\import\\").append(source.folderWord).append("\\*").append(source.extension));
    LabelTargetFolder.SetCaption(".\\asc\\*.asc");
    sourceFileCount_ = CountFiles(SourceFolder(), source.extension);
}

void frmImport::ShowPicture(Display display, std::int32_t targetFileCount) {
    PictureNoDelete.SetVisible(display == Display::Ready && targetFileCount == 0);
    PictureDelete.SetVisible(display == Display::Ready && targetFileCount > 0);
    PictureFinished.SetVisible(display == Display::Finished);
    PictureIncomplete.SetVisible(display == Display::Incomplete);
}

/// What a screen reader says at the end: whether all went well, what was left out, and the counts.
std::string frmImport::EndWords() const {
    const forms::PictureBox& picture = PictureFinished.Visible() ? PictureFinished : PictureIncomplete;
    std::string words = picture.AccessibleName();
    for (const std::string& more :
         {picture.ToolTip(), LabelTargetFiles.Caption(), LabelAddedRecords.Caption()}) {
        if (!more.empty()) words += ", " + more;
    }
    return words;
}

bool frmImport::StopRequested() const {
    return stopRequested_ || !IsOpen();  // the system may have closed the dialog during the import
}

void frmImport::FileDone() {
    // Counts show at a yield only, and counting the files of a large folder takes time.
    if (Owner().YieldIsDue()) UpdateDisplay(Display::Counts);
}

void frmImport::RecordsAdded(std::int32_t count) {
    LabelAddedRecords.SetCaption(CountOf(count, camerasWord_));
    LabelAddedRecords.SetAccessibleName(LabelAddedRecords.Caption());
}

std::string frmImport::Folder(std::initializer_list<std::string_view> words) const {
    const char separator = core_.Services().programInfo.Separator();
    std::string path = core_.WorkspaceRoot + separator;
    for (const std::string_view word : words) path.append(word) += separator;
    return path;
}

std::string frmImport::SourceFolder() const {
    return Folder({"import", SourceOf(sourceOption_).folderWord});
}

}  // namespace halvenmoor
