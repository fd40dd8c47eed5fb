#include "core/modMain.h"

#include "base/failure.h"

#include <exception>

namespace halvenmoor {

namespace {

constexpr std::string_view kApplicationName = "Halvenmoor";
constexpr std::string_view kSettingsSection = "Settings";

}  // namespace

void modMain::Main(const FormMaker& makeMainForm) {
    if (platform_.programInfo.PreviousInstance()) {
        platform_.programInfo.ActivatePreviousInstance();
        return;
    }
    MainForm = makeMainForm();
    desktop_.Show(*MainForm);
}

void modMain::ReloadWorkspace() {
    SetWorkspacePaths();
    const std::string path =
        platform_.programInfo.ProgramFolder() + platform_.programInfo.Separator() + "Settings.ini";
    ClassificationSettings = std::make_unique<const cSettingsClass>(platform_.fileSystem, path);
    LoadCameraFiles();
}

void modMain::SetWorkspacePaths() {
    const std::string programFolder = platform_.programInfo.ProgramFolder();
    const char separator = platform_.programInfo.Separator();
    const bool demonstration = ReadSetting("DemoMode", "1") == "1";
    WorkspaceRoot = demonstration ? programFolder + separator + "demo" : programFolder;
    FolderSuffix = std::string(demonstration ? "_demo" : "") + separator;
}

std::string modMain::ReadSetting(std::string_view key, std::string_view defaultValue) const {
    return platform_.settings.GetSetting(kApplicationName, kSettingsSection, key, defaultValue);
}

void modMain::WriteSetting(std::string_view key, std::string_view value) const {
    platform_.settings.SaveSetting(kApplicationName, kSettingsSection, key, value);
}

bool modMain::CheckFileSystemObject() const {
    try {
        platform_.fileSystem.CreateFileSystemObject();
        return true;
    } catch (const Failure& failure) {
        ReportFileSystemObjectError(failure.Number(), failure.what());
    } catch (const std::exception& exception) {
        ReportFileSystemObjectError(failure::OutOfMemory, exception.what());
    }
    return false;
}

void modMain::ReportFileSystemObjectError(int number, const std::string& description) const {
    desktop_.Yield();
    std::string text = "Run-time error " + std::to_string(number) + ":\r\n\r\n";
    if (number == failure::CannotCreateObject) {
        text +=
            "Microsoft script runtime library  \"scrrun.dll\"  is either missing, corrupt or not correctly "
            "registered.          ";
    } else {
        text += description + ".          ";
    }
    platform_.messages.Show(text, std::string(kApplicationName));
}

std::string modMain::DataFolder(std::string_view word) const {
    return (WorkspaceRoot + platform_.programInfo.Separator()).append(word) + FolderSuffix;
}

std::string modMain::CameraFile(std::string_view entry) const {
    return CameraFolder().append(entry) + ".asc";
}

std::string modMain::ResultsFile() const {
    return WorkspaceRoot + platform_.programInfo.Separator() + "Export Results.txt";
}

std::string modMain::LanguageFolder() const {
    const char separator = platform_.programInfo.Separator();
    return platform_.programInfo.ProgramFolder() + separator + "lang" + separator;
}

}  // namespace halvenmoor
