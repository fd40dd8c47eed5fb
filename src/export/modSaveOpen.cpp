#include "export/modSaveOpen.h"

#include "ui/cNamesClass.h"

#include <exception>
#include <optional>

namespace halvenmoor {

namespace {

platform::FileDialog TargetDialogue(const modMain& core, std::string title, std::string suggestedName) {
    return {.title = std::move(title),
            .suggestedName = std::move(suggestedName),
            .folder = core.TargetFolder(),
            .filter = "Text File (*.txt)|*.txt",
            .defaultExtension = "txt"};
}

using Question = std::optional<std::string> (platform::FileDialogs::*)(const platform::FileDialog&);

bool Ask(platform::FileDialogs& dialogs, Question question, const platform::FileDialog& dialog,
         std::string& fileName) {
    try {
        std::optional<std::string> chosen = (dialogs.*question)(dialog);
        if (chosen) fileName = std::move(*chosen);
        return chosen.has_value();
    } catch (const std::exception&) {
        return false;
    }
}

bool SaveFileDialogue(platform::FileDialogs& dialogs, const platform::FileDialog& dialog,
                      std::string& fileName) {
    return Ask(dialogs, &platform::FileDialogs::AskSavePath, dialog, fileName);
}

bool OpenFileDialogue(platform::FileDialogs& dialogs, const platform::FileDialog& dialog,
                      std::string& fileName) {
    return Ask(dialogs, &platform::FileDialogs::AskOpenPath, dialog, fileName);
}

}  // namespace

bool ShowSaveAsDialogue(const modMain& core, std::string& fileName) {
    const std::string name = std::string(kTargetBaseName) + " - " + core.Names->FileNameSaveAsNewSuffix();
    const bool confirmed =
        SaveFileDialogue(core.Services().fileDialogs,
                         TargetDialogue(core, core.Names->TitleSaveFileAsDialogue(), name), fileName);
    core.Desktop().Yield();
    return confirmed;
}

bool ShowAppendDialogue(const modMain& core, std::string& fileName) {
    const bool confirmed = OpenFileDialogue(
        core.Services().fileDialogs,
        TargetDialogue(core, core.Names->TitleAppendToFileDialogue(), std::string(kTargetBaseName)),
        fileName);
    core.Desktop().Yield();
    return confirmed;
}

}  // namespace halvenmoor
