#include "batch/user_actions.h"

#include "platform/headless/list_actions.h"
#include "ui/frmRename.h"

namespace halvenmoor {

bool UserChoosesLanguage(frmMain& window, const std::string& language) {
    for (int i = 0; i < window.LanguageList.ListCount(); ++i) {
        if (window.LanguageList.List(i) == language) return window.LanguageList.UserChoose(i);
    }
    return false;
}

bool UserExports(headless::HeadlessToolkit& toolkit, headless::PreparedFileDialogs& fileDialogs,
                 frmMain& window, int mode, const std::string& path) {
    bool resultsShown = false;
    constexpr int kMaxWindows = 4;  // should something else open one on the way
    for (int i = 0; i < kMaxWindows; ++i) {
        toolkit.Script([&](forms::Form& form) { resultsShown = form.UserEscape(); });
    }
    if (!path.empty()) fileDialogs.Answer = path;
    window.OptionExportMode[mode].UserPress();
    window.ButtonExportCameras.UserPress();
    toolkit.ForgetScript();
    fileDialogs.Answer.reset();
    return resultsShown;
}

std::string UserImports(headless::HeadlessToolkit& toolkit, frmMain& window, int source,
                        const std::function<void(frmImport&)>& look) {
    std::string picture;
    toolkit.Script([&](forms::Form& form) {
        auto& dialog = static_cast<frmImport&>(form);
        dialog.OptionSource[source].UserPress();
        dialog.ButtonStart.UserPress();
        if (look && dialog.IsOpen()) look(dialog);
        picture = ShownPicture(dialog);
        dialog.ButtonFinish.UserPress();
    });
    window.ButtonImportFiles.UserPress();
    toolkit.ForgetScript();
    return picture;
}

bool UserRenames(headless::HeadlessToolkit& toolkit, frmMain& window, const std::string& entry,
                 const std::string& newName) {
    toolkit.Script([&newName](forms::Form& form) {
        auto& dialog = static_cast<frmRename&>(form);
        dialog.TextFileName.UserTyped(newName);
        dialog.ButtonRename.UserPress();
        dialog.UserEscape();  // a refused name leaves it open
    });
    const bool pressed = headless::Select(window.MainList, {entry}) && window.ButtonRenameFile.UserPress();
    toolkit.ForgetScript();
    return pressed && headless::IndexOf(window.MainList, entry) < 0;
}

std::string ShownPicture(const frmImport& dialog) {
    std::string shown;
    for (const forms::PictureBox* picture : {&dialog.PictureNoDelete, &dialog.PictureDelete,
                                             &dialog.PictureFinished, &dialog.PictureIncomplete}) {
        if (picture->Visible()) shown += picture->Name();
    }
    return shown;
}

}  // namespace halvenmoor
