#pragma once

#include "catalogue/frmMain.h"

namespace halvenmoor {

/// The imports: opens the import dialog and brings the lists up to date afterwards.
class modImport {
public:
    explicit modImport(frmMain& mainForm) : mainForm_(mainForm) {}

    /// Connects the button of the main window that belongs to the import.
    void AttachButtons();

private:
    void ImportFilesClicked();
    void ShowImportDialog();

    frmMain& mainForm_;
};

}  // namespace halvenmoor
