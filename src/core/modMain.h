#pragma once

#include "core/cSettingsClass.h"
#include "forms/desktop.h"
#include "platform/platform.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace halvenmoor {

class cNamesClass;

// The values of modMain::ExportMode.
inline constexpr std::int16_t kReplaceFile = 1;
inline constexpr std::int16_t kSaveFileAs = 2;
inline constexpr std::int16_t kAppendToFile = 3;

/// The start of the program, the state that all modules share, the folders it works in and its stored
/// options.
class modMain {
public:
    using FormMaker = std::function<std::unique_ptr<forms::Form>()>;

    modMain(const platform::Platform& platform, forms::Desktop& desktop)
        : platform_(platform), desktop_(desktop) {}

    std::unique_ptr<forms::Form> MainForm;
    /// Replaced at every reload: take its values when they are needed.
    std::unique_ptr<const cSettingsClass> ClassificationSettings;
    std::shared_ptr<cNamesClass> Names;
    /// The root folder of the camera data, without a separator at its end.
    std::string WorkspaceRoot;
    /// What follows the folder words "asc" and "txt" in a path.
    std::string FolderSuffix;
    std::int16_t ExportMode = kReplaceFile;
    /// Refills the lists; set by the owner of the lists.
    std::function<void()> LoadCameraFiles;

    const platform::Platform& Services() const { return platform_; }
    forms::Desktop& Desktop() const { return desktop_; }

    /// Shows the main window; if another instance runs already, brings that one forward and makes no window.
    void Main(const FormMaker& makeMainForm);
    /// Sets the folders, reads Settings.ini again and refills the lists.
    void ReloadWorkspace();

    std::string ReadSetting(std::string_view key, std::string_view defaultValue) const;
    void WriteSetting(std::string_view key, std::string_view value) const;

    /// Whether a file-system object can be made; says so in a message if not.
    bool CheckFileSystemObject() const;

    /// The folder of the camera files, with a separator at its end.
    std::string CameraFolder() const { return DataFolder("asc"); }
    /// The path of a new camera file; CameraFiles finds those that exist.
    std::string CameraFile(std::string_view entry) const;
    /// The folder of the target files, with a separator at its end.
    std::string TargetFolder() const { return DataFolder("txt"); }
    std::string ResultsFile() const;
    /// The folder of the language files, with a separator at its end.
    std::string LanguageFolder() const;

private:
    void SetWorkspacePaths();
    void ReportFileSystemObjectError(int number, const std::string& description) const;
    std::string DataFolder(std::string_view word) const;

    platform::Platform platform_;
    forms::Desktop& desktop_;
};

}  // namespace halvenmoor
