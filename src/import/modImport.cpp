#include "import/modImport.h"

#include "import/frmImport.h"

namespace halvenmoor {

namespace {

/// Disables the lists for as long as it lives.
class DisabledLists {
public:
    explicit DisabledLists(frmMain& mainForm) : mainForm_(mainForm) { mainForm_.DisableLists(); }
    ~DisabledLists() { mainForm_.EnableLists(); }
    DisabledLists(const DisabledLists&) = delete;
    DisabledLists& operator=(const DisabledLists&) = delete;

private:
    frmMain& mainForm_;
};

}  // namespace

void modImport::AttachButtons() {
    mainForm_.ButtonImportFiles.OnClick = [this] { ImportFilesClicked(); };
}

void modImport::ImportFilesClicked() {
    const DisabledLists disabled(mainForm_);
    ShowImportDialog();
}

void modImport::ShowImportDialog() {
    modMain& core = mainForm_.Core();
    frmImport dialog(mainForm_);
    core.Desktop().ShowModal(dialog);
    if (dialog.FilesModified()) core.ReloadWorkspace();
    mainForm_.UpdateButtons(dialog.FilesModified());
}

}  // namespace halvenmoor
