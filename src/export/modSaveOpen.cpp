#include "export/modSaveOpen.h"

#include "base/failure.h"
#include "ui/language/cNamesClass.h"

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

bool SaveFileDialogue(platform::FileDialogs& dialogs, const platform::FileDialog& dialog,
                      std::string& fileName) {
    try {
        const std::optional<std::string> chosen = dialogs.AskSavePath(dialog);
        fileName = chosen.value_or(fileName);
        return chosen.has_value();
    } catch (const std::exception&) {
        TraceFailure("ask for a new target", dialog.folder);
        return false;
    }
}

bool OpenFileDialogue(platform::FileDialogs& dialogs, const platform::FileDialog& dialog,
                      std::string& fileName) {
    try {
        const std::optional<std::string> chosen = dialogs.AskOpenPath(dialog);
        fileName = chosen.value_or(fileName);
        return chosen.has_value();
    } catch (const std::exception&) {
        TraceFailure("ask for an existing target", dialog.folder);
        return false;
    }
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
