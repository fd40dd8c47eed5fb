// The keys of the main window. Those that press a button anywhere stand in the table of its controls.

#include "base/text/decode.h"
#include "catalogue/frmMain.h"
#include "catalogue/languages.h"

#include <algorithm>

namespace halvenmoor {

void frmMain::ConnectKeys() {
    AddShortcut({"F1", nullptr, [this] { ShowManual(); }});
    AddShortcut({"Alt+M", nullptr, [this] { ReturnToMainList(); }});
    AddShortcut({"Enter", &MainList, [this] { ButtonRenameFile.UserPress(); }});
    AddShortcut({"Ctrl+C", &MainList, [this] { CopyNames(MainList); }});
    MainList.OnDoubleClick = [this] { ButtonRenameFile.UserPress(); };
    for (int type = kFirstType; type <= kLastType; ++type) {
        forms::ListBox& list = TypeList[type];
        AddShortcut({"Delete", &list, [this, type] { ButtonRemove[type].UserPress(); }});
        AddShortcut({"Ctrl+C", &list, [this, &list] { CopyNames(list); }});
    }
}

/// The current row stands where a file stood that was moved: sorting goes on from there.
void frmMain::ReturnToMainList() {
    MainList.SetFocus();
    if (MainList.ListCount() == 0 || MainList.SelCount() > 0) return;
    MainList.SetSelected(std::max(MainList.ListIndex(), 0), true);
}

void frmMain::CopyNames(const forms::ListBox& list) const {
    std::string names;
    for (int i = 0; i < list.ListCount(); ++i) {
        if (!list.Selected(i)) continue;
        if (!names.empty()) names += '\n';
        names += text::ToUtf8(list.List(i), core_.Services().locale.CodePage());
    }
    core_.Desktop().Copy(names);
}

void frmMain::ShowManual() const {
    const platform::ProgramInfo& program = core_.Services().programInfo;
    const std::string manual = program.ProgramFolder() + program.Separator() + "manual.html";
    if (FileExistsCheck(core_.Services().fileSystem, manual)) core_.Services().browser.Open(manual);
}

}  // namespace halvenmoor
