#pragma once

#include "core/modMain.h"
#include "forms/list_box.h"
#include "ui/layouts/frmRenameLayout.h"

#include <string>

namespace halvenmoor {

/// The small window beside the current row of a list of camera files, in which that file gets a new name.
class frmRename : public frmRenameLayout {
public:
    /// The list has a current row and outlives the window.
    frmRename(const modMain& core, forms::ListBox& list);

protected:
    void Load() override;
    bool KeyPress(char32_t key) override;

private:
    void MoveBesideRow();
    void Confirm();
    /// True when the window may close: the file has its new name, or nothing was to be done.
    bool RenameFile(const std::string& oldName, const std::string& newName);
    bool IsRefused(const std::string& newName) const;
    void OfferName(const std::string& name);
    void MoveEntry(const std::string& newName);
    void CloseDialog();

    const modMain& core_;
    forms::ListBox& list_;
};

/// Lets the user rename the file of the list's current row, if exactly one row is selected. Never fails.
void RenameSelectedFile(const modMain& core, forms::ListBox& list);

}  // namespace halvenmoor
