// The lists of the main window: their files, moves, drags, selections, and the buttons that depend on them.

#include "base/failure.h"
#include "catalogue/classification.h"
#include "catalogue/frmMain.h"
#include "core/camera_files.h"
#include "ui/language/cNamesClass.h"

#include <exception>
#include <utility>

namespace halvenmoor {

void frmMain::ConnectLists() {
    ConnectList(MainList, 0);
    for (int type = kFirstType; type <= kLastType; ++type) {
        ConnectList(TypeList[type], type);
        ButtonAdd[type].OnClick = [this, type] { MoveSelectedItems(MainList, TypeList[type]); };
        // Each of these buttons sends back whatever is selected in any type list.
        ButtonRemove[type].OnClick = [this] {
            for (forms::ListBox& list : TypeList) MoveSelectedItems(list, MainList);
        };
    }
}

void frmMain::ConnectList(forms::ListBox& list, int number) {
    list.OnClick = [this, number] {
        if (!suppressSelectionEvent_) ClearOtherSelections(number);
        suppressSelectionEvent_ = false;
        UpdateRenameButton();
    };
    list.OnStartDrag = [this, &list] {
        dragSource_ = &list;
        list.SetDragText(DragText(list));
        SetDropMode(true);
    };
    list.OnDragDrop = [this, &list] {
        if (&list != dragSource_) MoveSelectedItems(*dragSource_, list);
    };
    list.OnCompleteDrag = [this] { SetDropMode(false); };
}

void frmMain::ClearListBoxes() {
    for (forms::ListBox& list : TypeList) list.Clear();
    MainList.Clear();
}

/// Empties the lists and fills the unclassified one with the files of the camera folder.
void frmMain::LoadCameraFiles() {
    ClearListBoxes();
    std::vector<std::string> entries = FindCameraFiles(core_.Services().hostFiles, core_.CameraFolder());
    try {
        MainList.AddItems(std::move(entries));
    } catch (const std::exception&) {
        TraceFailure("fill the list of camera files");
        // A folder with more files than a list can hold shows the first ones.
    }
}

/// Moves the unclassified entries to the first type that takes them. True if an entry moved.
bool frmMain::ClassifyFiles() {
    const TypeTable<PatternList>& patterns = core_.ClassificationSettings->TypeFileNamePatterns();
    const text::CodePage& codePage = core_.Services().locale.CodePage();
    bool anyMoved = false;
    for (int type = kFirstType; type <= kLastType; ++type) {
        if (!CheckAuto[type].Value()) continue;
        const PatternList& ofType = patterns[static_cast<std::size_t>(type)];
        anyMoved |= ClassifyFilesOfType(MainList, TypeList[type], ofType, codePage);
    }
    return anyMoved;
}

void frmMain::MoveSelectedItems(forms::ListBox& source, forms::ListBox& target) {
    if (source.SelCount() >= 1) {
        source.MoveItemsTo(target, [&source](int i) { return source.Selected(i); });
    }
    UpdateButtons(true);
}

/// The name of the one file that is dragged, or their number.
std::string frmMain::DragText(const forms::ListBox& list) const {
    return list.SelCount() == 1 ? SelectedNames(list)
                                : CountOf(list.SelCount(), core_.Names->LabelNumberOfFiles());
}

void frmMain::SetDropMode(bool active) {
    const auto mode = active ? forms::ListBox::DropMode::Manual : forms::ListBox::DropMode::None;
    MainList.SetOLEDropMode(mode);
    for (forms::ListBox& list : TypeList) list.SetOLEDropMode(mode);
}

void frmMain::ClearOtherSelections(int clicked) {
    if (clicked != 0) ClearSelection(MainList);
    for (int type = kFirstType; type <= kLastType; ++type) {
        if (type != clicked) ClearSelection(TypeList[type]);
    }
}

void frmMain::ClearSelection(forms::ListBox& list) {
    for (int i = 0; list.SelCount() > 0 && i < list.ListCount(); ++i) {
        if (!list.Selected(i)) continue;
        // The click that this raises comes from code and must not clear other selections.
        suppressSelectionEvent_ = true;
        list.SetSelected(i, false);
    }
}

void frmMain::EnableLists() {
    for (forms::ListBox& list : TypeList) list.SetEnabled(true);
    MainList.SetEnabled(true);
}

void frmMain::DisableLists() {
    for (forms::ListBox& list : TypeList) list.SetEnabled(false);
    MainList.SetEnabled(false);
}

bool frmMain::AnyTypeListHasItems() const {
    for (int type = kFirstType; type <= kLastType; ++type) {
        if (TypeList[type].ListCount() > 0) return true;
    }
    return false;
}

void frmMain::UpdateButtons(bool resetResults) {
    if (resetResults) ResultsValid = false;
    const bool anyClassified = AnyTypeListHasItems();
    // The buttons come in the order of the steps, so the focus ends on that of the most advanced one.
    OfferStep(ButtonClassifyFiles, MainList.ListCount() > 0);
    ButtonReloadFiles.SetEnabled(anyClassified);
    UpdateRenameButton();
    ButtonImportFiles.SetEnabled(core_.ReadSetting("DemoMode", "1") != "1");
    const bool nothingBefore = !ButtonClassifyFiles.Enabled() && !ButtonReloadFiles.Enabled();
    if (formLoaded_ && nothingBefore) ButtonImportFiles.SetFocus();
    OfferStep(ButtonExportCameras, anyClassified);
    OfferStep(ButtonShowResults, ResultsValid);
}

/// Enables the button of a step and gives it the focus, or disables it.
void frmMain::OfferStep(forms::CommandButton& button, bool isPossible) {
    button.SetEnabled(isPossible);
    if (formLoaded_) button.SetFocus();  // does nothing while the button is disabled
}

void frmMain::UpdateRenameButton() {
    ButtonRenameFile.SetEnabled(MainList.SelCount() == 1);
}

}  // namespace halvenmoor
