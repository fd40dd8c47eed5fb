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
    AddShortcut({"Ctrl+C", &MainList, [this] { core_.Desktop().Copy(SelectedNames(MainList)); }});
    MainList.OnDoubleClick = [this] { ButtonRenameFile.UserPress(); };
    for (int type = kFirstType; type <= kLastType; ++type) {
        forms::ListBox& list = TypeList[type];
        AddShortcut({"Delete", &list, [this, type] { ButtonRemove[type].UserPress(); }});
        AddShortcut({"Ctrl+C", &list, [this, &list] { core_.Desktop().Copy(SelectedNames(list)); }});
    }
}

/// The current row stands where a file stood that was moved: sorting goes on from there.
void frmMain::ReturnToMainList() {
    MainList.SetFocus();
    if (MainList.ListCount() == 0 || MainList.SelCount() > 0) return;
    MainList.SetSelected(std::max(MainList.ListIndex(), 0), true);
}

/// One a line.
std::string frmMain::SelectedNames(const forms::ListBox& list) const {
    std::string names;
    for (int i = 0; i < list.ListCount(); ++i) {
        if (!list.Selected(i)) continue;
        if (!names.empty()) names += '\n';
        names += text::ToUtf8(list.List(i), core_.Services().locale.CodePage());
    }
    return names;
}

void frmMain::ShowManual() const {
    const platform::ProgramInfo& program = core_.Services().programInfo;
    const std::string manual = program.ProgramFolder() + program.Separator() + "manual.html";
    if (FileExistsCheck(core_.Services().fileSystem, manual)) core_.Services().browser.Open(manual);
}

}  // namespace halvenmoor
