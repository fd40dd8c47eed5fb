#include "catalogue/frmMain.h"

#include "base/text/compare.h"
#include "catalogue/languages.h"
#include "ui/frmRename.h"
#include "ui/language/cNamesClass.h"

namespace halvenmoor {

namespace {

// The window's corner lies this far from the middle of the screen, in pixels.
constexpr int kLeftOfMiddle = 400;
constexpr int kAboveMiddle = 315;

/// A move of entries to the list with a heading: from another list, or by a button.
std::string MoveWords(std::string from, const std::string& to) {
    return from.append(" \u2192 ").append(to);
}

const char* StoredValue(const forms::CheckBox& box) {
    return box.Value() ? "1" : "0";
}

}  // namespace

frmMain::frmMain(modMain& core) : frmMainLayout(core.Desktop()), core_(core) {
    core_.LoadCameraFiles = [this] { LoadCameraFiles(); };
    ConnectLists();
    ConnectOptions();
    ConnectLanguageList();
    ConnectKeys();
    ButtonClassifyFiles.OnClick = [this] {
        if (ClassifyFiles()) UpdateButtons(true);
    };
    ButtonRenameFile.OnClick = [this] {
        RenameSelectedFile(core_, MainList);
        MainList.SetFocus();
    };
    ButtonReloadFiles.OnClick = [this] { ReloadAll(); };
    ButtonExitApplication.OnClick = [this] { Unload(); };
}

void frmMain::ConnectOptions() {
    for (int i = 1; i <= 3; ++i) {
        OptionExportMode[i].OnClick = [this, i] { core_.ExportMode = static_cast<std::int16_t>(i); };
    }
    CheckSaveResults.OnClick = [this] { core_.WriteSetting("SaveResults", StoredValue(CheckSaveResults)); };
    CheckDemoMode.OnClick = [this] {
        if (!formLoaded_) return;
        core_.WriteSetting("DemoMode", StoredValue(CheckDemoMode));
        ReloadAll();
    };
    for (forms::CheckBox& box : CheckAuto) box.OnClick = [this] { ReloadAll(); };
}

void frmMain::ConnectLanguageList() {
    const auto rememberIndex = [this] {
        if (LanguageList.ListIndex() >= 0)
            LanguageIndex = static_cast<std::int16_t>(LanguageList.ListIndex());
    };
    LanguageList.OnClick = [this] { ChooseLanguage(); };
    LanguageList.OnGotFocus = rememberIndex;
    LanguageList.OnLostFocus = rememberIndex;
    LanguageList.OnChange = [this] { LanguageList.SetListIndex(LanguageIndex); };
}

void frmMain::Load() {
    const platform::ScreenSize screen = core_.Services().programInfo.Screen();
    MoveTo({screen.width * forms::kTwipsPerPixel / 2 - kLeftOfMiddle * forms::kTwipsPerPixel,
            screen.height * forms::kTwipsPerPixel / 2 - kAboveMiddle * forms::kTwipsPerPixel});
    const platform::ProgramVersion version = core_.Services().programInfo.Version();
    SetCaption(AtDesign().title + " " + std::to_string(version.major) + "." + std::to_string(version.minor));
    core_.ExportMode = kReplaceFile;
    LoadStoredOptions();
    core_.ReloadWorkspace();
    UpdateButtons(true);
    core_.Names = std::make_shared<cNamesClass>(core_.Services());
    core_.Names->SetPath(core_.LanguageFolder());
    core_.Names->SetSection("Halvenmoor");
    InitialiseLanguageList(LanguageList, core_);
    formLoaded_ = true;
}

void frmMain::Activate() {
    if (!core_.CheckFileSystemObject()) core_.Desktop().End();
}

void frmMain::LoadStoredOptions() {
    CheckDemoMode.SetValue(core_.ReadSetting("DemoMode", "1") == "1");
    CheckSaveResults.SetValue(core_.ReadSetting("SaveResults", "1") == "1");
}

void frmMain::ReloadAll() {
    core_.ReloadWorkspace();
    UpdateButtons(true);
}

void frmMain::ChooseLanguage() {
    cNamesClass& names = *core_.Names;
    LanguageIndex = static_cast<std::int16_t>(LanguageList.ListIndex());
    const std::string language = LanguageList.Text();
    const bool hasFile = FileExistsCheck(core_.Services().fileSystem, names.Path() + language + ".ini");
    if (!hasFile && !text::EqualIgnoringAsciiCase(language, "English")) {
        // The file has gone since the list was filled.
        InitialiseLanguageList(LanguageList, core_);
        return;
    }
    names.SetLanguage(hasFile ? language : "English");
    core_.WriteSetting("Language", names.Language());
    names.SetEnabled(hasFile);
    core_.Desktop().SetLanguage(names.Language());
    ApplyLanguageTexts();
}

void frmMain::ApplyLanguageTexts() {
    const cNamesClass& names = *core_.Names;
    for (int type = kFirstType; type <= kLastType; ++type) {
        LabelTypeList[type].SetCaption(names.LabelSpeedCamera() + " " + names.LabelSpeedCameraType() + " \"" +
                                       std::to_string(type) + "\" (" + names.LabelTypeDescription(type) +
                                       ")");
    }
    LabelMainList.SetCaption(names.LabelSpeedCameraFiles() + " (" + names.LabelUnclassifiedDescription() +
                             ")");
    LabelSelectLanguage.SetCaption(names.LabelSelectLanguage());
    FrameFileOptions.SetCaption(names.FrameFileOptions());
    FrameExportCameras.SetCaption(names.FrameExportCameras());
    ButtonClassifyFiles.SetCaption(names.ButtonClassifyFiles());
    ButtonReloadFiles.SetCaption(names.ButtonReloadFiles());
    ButtonRenameFile.SetCaption(names.ButtonRenameFile());
    ButtonImportFiles.SetCaption(names.ButtonImportFiles());
    ButtonExportCameras.SetCaption(names.ButtonExportCameras());
    ButtonShowResults.SetCaption(names.ButtonShowResults());
    ButtonExitApplication.SetCaption(names.ButtonExitApplication());
    OptionExportMode[1].SetCaption(names.OptionExportModeReplaceFile());
    OptionExportMode[2].SetCaption(names.OptionExportModeSaveFileAs() + "...");
    OptionExportMode[3].SetCaption(names.OptionExportModeAppendToFile() + "...");
    CheckDemoMode.SetCaption(names.CheckDemonstrationMode());
    CheckSaveResults.SetCaption(names.CheckSaveResultsToFile());
    NameControls();
}

/// Names the controls without a caption after their neighbours, for screen readers.
void frmMain::NameControls() {
    const cNamesClass& names = *core_.Names;
    const std::string& unclassified = LabelMainList.Caption();
    const TypeTable<forms::PictureBox*> pictures{nullptr,   &Picture1, &Picture2,
                                                 &Picture3, &Picture4, &Picture5};
    for (int type = kFirstType; type <= kLastType; ++type) {
        const std::string& heading = LabelTypeList[type].Caption();
        pictures[static_cast<std::size_t>(type)]->SetAccessibleName(heading);
        TypeList[type].SetAccessibleName(heading);
        CheckAuto[type].SetAccessibleName(CheckAuto[type].Caption() + ": " + heading);
        CheckAuto[type].SetToolTip(MoveWords(names.ButtonClassifyFiles(), heading));
        ButtonAdd[type].SetAccessibleName(MoveWords(unclassified, heading));
        ButtonRemove[type].SetAccessibleName(MoveWords(heading, unclassified));
        ButtonRemove[type].SetToolTip("Alt+0, Delete");
    }
    MainList.SetAccessibleName(unclassified);
    LanguageList.SetAccessibleName(LabelSelectLanguage.Caption());
}

}  // namespace halvenmoor
