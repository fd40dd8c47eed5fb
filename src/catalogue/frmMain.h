#pragma once

#include "core/modMain.h"
#include "ui/layouts/frmMainLayout.h"

#include <cstdint>
#include <string>

namespace halvenmoor {

/// The main window. Its six lists are the whole catalogue: the type of a camera file is the list that its
/// entry stands in. An entry is the file's name without ".asc".
class frmMain : public frmMainLayout {
public:
    explicit frmMain(modMain& core);

    /// Whether the results of a finished export can be shown.
    bool ResultsValid = false;
    /// The last good position in LanguageList.
    std::int16_t LanguageIndex = 0;

    /// Empties all six lists.
    void ClearListBoxes();
    /// Applies the rules for the buttons; where resetResults, the results of the last export are over.
    void UpdateButtons(bool resetResults);
    void EnableLists();
    void DisableLists();

    modMain& Core() const { return core_; }

protected:
    void Load() override;
    void Activate() override;

private:
    void ConnectLists();
    void ConnectList(forms::ListBox& list, int number);
    void ConnectOptions();
    void ConnectLanguageList();
    void ConnectKeys();

    void LoadStoredOptions();
    void LoadCameraFiles();
    bool ClassifyFiles();
    void ApplyLanguageTexts();
    void NameControls();
    void ChooseLanguage();
    void MoveSelectedItems(forms::ListBox& source, forms::ListBox& target);
    std::string DragText(const forms::ListBox& list) const;
    void SetDropMode(bool active);
    void ClearOtherSelections(int clicked);
    void ClearSelection(forms::ListBox& list);
    void ReloadAll();
    void ReturnToMainList();
    std::string SelectedNames(const forms::ListBox& list) const;
    void ShowManual() const;
    bool AnyTypeListHasItems() const;
    void OfferStep(forms::CommandButton& button, bool isPossible);
    void UpdateRenameButton();

    modMain& core_;
    bool formLoaded_ = false;
    bool suppressSelectionEvent_ = false;
    forms::ListBox* dragSource_ = nullptr;
};

}  // namespace halvenmoor
