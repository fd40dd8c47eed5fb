#pragma once

#include "platform/platform.h"

#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// The catalogue of all texts of the interface. A text comes from the file of the chosen language or, where
/// that has none, from the English default built in here. Nothing is cached: each read of a text reads the
/// file anew. No read ever fails. All texts are UTF-8.
///
/// In a language file, marks shape a text: ` #` before a word keeps its first letter small, `#` inside a word
/// raises the letter behind it, and quotes and ampersands are dropped.
class cNamesClass {
public:
    /// How the letters of a text are shown: each word with a capital, or as they were written.
    enum class Case { AsWritten = 0, Proper = 3 };

    /// One text; calling it fetches the text.
    class TextProperty {
    public:
        TextProperty(cNamesClass& names, std::string_view key, std::string_view builtIn,
                     Case letterCase = Case::Proper);
        std::string operator()() const { return names_.LookupText(*this); }
        std::string_view Key() const { return entryKey_; }

    private:
        friend class cNamesClass;

        const cNamesClass& names_;
        std::string_view entryKey_;
        std::string_view entryDefault_;
        Case entryCase_;
    };

    explicit cNamesClass(const platform::Platform& platform)
        : fileSystem_(platform.fileSystem), locale_(platform.locale) {}
    cNamesClass(const cNamesClass&) = delete;
    cNamesClass& operator=(const cNamesClass&) = delete;

    /// The folder of the language files, with a separator at its end.
    const std::string& Path() const { return path_; }
    void SetPath(std::string path) { path_ = std::move(path); }
    void SetSection(std::string section) { section_ = std::move(section); }
    /// The name of the language file without its extension.
    const std::string& Language() const { return language_; }
    void SetLanguage(std::string language) { language_ = std::move(language); }
    /// Off: the built-in texts, without touching a file.
    void SetEnabled(bool enabled) { enabled_ = enabled; }

    /// The description of a camera type, 1 to 5.
    std::string LabelTypeDescription(int type) const;
    /// All texts in the order below.
    const std::vector<const TextProperty*>& Texts() const { return texts_; }

private:
    std::string LookupText(const TextProperty& entry) const;

    platform::FileSystem& fileSystem_;
    const platform::Locale& locale_;
    std::string path_;
    std::string section_;
    std::string language_;
    bool enabled_ = false;
    std::vector<const TextProperty*> texts_;

public:
    const TextProperty LabelSpeedCamera{*this, "LabelSpeedCamera", "Speed Camera"};
    const TextProperty LabelSpeedCameraType{*this, "LabelSpeedCameraType", "Type"};
    const TextProperty LabelType1Description{*this, "LabelType1Description", "Fixed Speed Camera"};
    const TextProperty LabelType2Description{*this, "LabelType2Description", "Red Speed Camera"};
    const TextProperty LabelType3Description{*this, "LabelType3Description", "Red Light Camera"};
    const TextProperty LabelType4Description{*this, "LabelType4Description", "Section Speed Camera"};
    const TextProperty LabelType5Description{*this, "LabelType5Description", "Mobile Speed Camera"};
    const TextProperty LabelSpeedCameraFiles{*this, "LabelSpeedCameraFiles", "Speed Camera Files"};
    const TextProperty LabelUnclassifiedDescription{*this, "LabelUnclassifiedDescription", "Unclassified"};
    const TextProperty LabelSelectLanguage{*this, "LabelSelectLanguage", "Select Language"};
    const TextProperty FrameFileOptions{*this, "FrameFileOptions", "File Options"};
    const TextProperty ButtonClassifyFiles{*this, "ButtonClassifyFiles", "Classify Files"};
    const TextProperty ButtonReloadFiles{*this, "ButtonReloadFiles", "Reload Files"};
    const TextProperty ButtonRenameFile{*this, "ButtonRenameFile", "Rename File"};
    const TextProperty ButtonImportFiles{*this, "ButtonImportFiles", "Import Files"};
    const TextProperty CheckDemonstrationMode{*this, "CheckDemonstrationMode", "Demonstration Mode"};
    const TextProperty FrameExportCameras{*this, "FrameExportCameras", "Export Cameras"};
    const TextProperty ButtonExportCameras{*this, "ButtonExportCameras", "Export"};
    const TextProperty OptionExportModeReplaceFile{*this, "OptionExportModeReplaceFile", "Replace File"};
    const TextProperty OptionExportModeSaveFileAs{*this, "OptionExportModeSaveFileAs", "Save File As"};
    const TextProperty OptionExportModeAppendToFile{*this, "OptionExportModeAppendToFile", "Append To File"};
    const TextProperty CheckSaveResultsToFile{*this, "CheckSaveResultsToFile", "Save Results To File"};
    const TextProperty ButtonShowResults{*this, "ButtonShowResults", "Show Results"};
    const TextProperty ButtonExitApplication{*this, "ButtonExitApplication", "Exit"};
    const TextProperty TitleSaveFileAsDialogue{*this, "TitleSaveFileAsDialogue",
                                               "Save As New Speed Camera File"};
    const TextProperty TitleAppendToFileDialogue{*this, "TitleAppendToFileDialogue",
                                                 "Append To Existing Speed Camera File"};
    const TextProperty FileNameSaveAsNewSuffix{*this, "FileNameSaveAsNewSuffix", "New"};
    const TextProperty LabelExportingSpeedCameras{*this, "LabelExportingSpeedCameras",
                                                  "Exporting Speed Cameras"};
    const TextProperty LabelAppendingSpeedCameras{*this, "LabelAppendingSpeedCameras",
                                                  "Appending Speed Cameras"};
    const TextProperty TitleExportSpeedCameras{*this, "TitleExportSpeedCameras", "Export Speed Cameras"};
    const TextProperty TitleAppendSpeedCameras{*this, "TitleAppendSpeedCameras", "Append Speed Cameras"};
    const TextProperty FrameMainExported{*this, "FrameMainExported", "Exported Speed Camera Results"};
    const TextProperty FrameMainAppended{*this, "FrameMainAppended", "Appended Speed Camera Results"};
    const TextProperty LabelFilesProcessed{*this, "LabelFilesProcessed", "Files Processed"};
    const TextProperty LabelExportedCameras{*this, "LabelExportedCameras", "Exported Cameras"};
    const TextProperty LabelAppendedCameras{*this, "LabelAppendedCameras", "Appended Cameras"};
    const TextProperty LabelSkippedCameras{*this, "LabelSkippedCameras", "Skipped Cameras"};
    const TextProperty FrameAllTypes{*this, "FrameAllTypes", "All Types"};
    const TextProperty LabelTotalFilesAndCameras{*this, "LabelTotalFilesAndCameras",
                                                 "Total Files #and Cameras"};
    const TextProperty ButtonCloseResults{*this, "ButtonCloseResults", "Close"};
    const TextProperty CheckShowResults{
        *this, "CheckShowResults", "Show results summary after exporting speed cameras", Case::AsWritten};
    const TextProperty TitleImportFiles{*this, "TitleImportFiles", "Import Files"};
    const TextProperty FrameSelections{*this, "FrameSelections", "Selections"};
    const TextProperty LabelSourceFolder{*this, "LabelSourceFolder", "Source Folder"};
    const TextProperty LabelTargetFolder{*this, "LabelTargetFolder", "Target Folder"};
    const TextProperty LabelNumberOfFiles{*this, "LabelNumberOfFiles", "File"};
    const TextProperty LabelNumberOfCameras{*this, "LabelNumberOfCameras", "Camera"};
    const TextProperty FrameActions{*this, "FrameActions", "Actions"};
    const TextProperty CheckDeleteExistingFiles{*this, "CheckDeleteExistingFiles",
                                                "Delete any existing files in target folder, then",
                                                Case::AsWritten};
    const TextProperty OptionSourceOV2Files{*this, "OptionSourceOV2Files",
                                            "Convert all OV2 source files to Ascii and save in target folder",
                                            Case::AsWritten};
    const TextProperty OptionSourceTXTFiles{*this, "OptionSourceTXTFiles",
                                            "Convert all TXT source files to Ascii and save in target folder",
                                            Case::AsWritten};
    const TextProperty ButtonStart{*this, "ButtonStart", "Start"};
    const TextProperty ButtonCancel{*this, "ButtonCancel", "Cancel"};
    const TextProperty ButtonFinish{*this, "ButtonFinish", "Finish"};
};

/// The shown form of a text of the language file: marks removed, letter case set.
std::string NormaliseText(std::string_view raw, cNamesClass::Case letterCase);

/// A number of files or cameras, with the word for them: "3 File(s)".
std::string CountOf(int count, const std::string& word);

}  // namespace halvenmoor
