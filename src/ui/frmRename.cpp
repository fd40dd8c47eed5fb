#include "ui/frmRename.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/decode.h"
#include "core/camera_files.h"
#include "ui/language/cNamesClass.h"

#include <exception>
#include <optional>
#include <string_view>

namespace halvenmoor {

namespace {

constexpr char32_t kEnter = 13;
constexpr std::string_view kRefusedCharacters = "\\/:\"<>|;!#*?";
/// Between the window and the list.
constexpr forms::Twips kGap = 45;

bool ContainsAnyCharacter(std::string_view text, std::string_view characters) {
    return text.find_first_of(characters) != std::string_view::npos;
}

std::string CurrentEntry(const forms::ListBox& list) {
    return list.List(list.ListIndex());
}

std::optional<std::string> FileOf(const modMain& core, const std::string& entry) {
    return CameraFiles(core.Services().hostFiles, core.CameraFolder()).FileOf(entry);
}

void ReportMissingFile(const modMain& core, std::string_view entry) {
    const platform::Platform& services = core.Services();
    services.messages.Show("Error renaming " + text::ToUtf8(entry, services.locale.CodePage()) +
                               ".asc: The system cannot find the file specified.          ",
                           "Rename Speed Camera File");
}

}  // namespace

frmRename::frmRename(const modMain& core, forms::ListBox& list)
    : frmRenameLayout(core.Desktop()), core_(core), list_(list) {
    ButtonRename.OnClick = [this] { Confirm(); };
    ButtonCancel.OnClick = [this] { CloseDialog(); };
}

void frmRename::Load() {
    SetCaption(core_.Names->ButtonRenameFile());
    TextFileName.SetAccessibleName(Caption());
    ButtonRename.SetAccessibleName(Caption());
    ButtonCancel.SetAccessibleName(core_.Names->ButtonCancel());
    MoveBesideRow();
    OfferName(CurrentEntry(list_));
}

/// The window ends just left of the list, and the field is level with the current row. Positions of windows
/// count from the corners of their frames, those of controls from the client area.
void frmRename::MoveBesideRow() {
    const forms::Form& main = list_.Owner();
    const forms::Point corner = main.Position();
    const forms::FrameMetrics frame = main.WindowFrame();
    const forms::Twips frameWidth = frame.frameWidth * forms::kTwipsPerPixel;
    const forms::Twips captionAbove = (frame.captionHeight + frame.frameHeight) * forms::kTwipsPerPixel;
    const forms::Twips ownCaption = (frame.smallCaptionHeight + frame.frameHeight) * forms::kTwipsPerPixel;

    const forms::Twips listLeft = list_.AtDesign().bounds.left + frameWidth - kGap;
    const forms::Twips ownWidth = AtDesign().width + 2 * frameWidth;
    const forms::Twips listTop =
        list_.AtDesign().bounds.top + captionAbove - ownCaption - TextFileName.AtDesign().bounds.top;
    const forms::Twips rowsAbove = (list_.ListIndex() - list_.TopIndex()) * list_.RowHeight();
    MoveTo({corner.left + listLeft - ownWidth, corner.top + listTop + rowsAbove});
}

bool frmRename::KeyPress(char32_t key) {
    if (key != kEnter) return false;
    Confirm();
    return true;
}

void frmRename::Confirm() {
    if (RenameFile(CurrentEntry(list_), TextFileName.Text())) CloseDialog();
}

bool frmRename::RenameFile(const std::string& oldName, const std::string& newName) {
    try {
        if (newName.empty()) return true;
        if (text::EqualIgnoringCase(oldName, newName, core_.Services().locale.CodePage())) return true;
        if (IsRefused(newName)) {
            OfferName(oldName);
            return false;
        }
        const std::optional<std::string> file = FileOf(core_, oldName);
        if (!file) return false;
        core_.Services().hostFiles.Rename(*file, core_.CameraFile(newName));
        MoveEntry(newName);
        return true;
    } catch (const std::exception&) {
        TraceFailure("rename a camera file", oldName);
        return false;
    }
}

bool frmRename::IsRefused(const std::string& newName) const {
    const bool isHidden = newName.starts_with('.');
    if (isHidden || ContainsAnyCharacter(newName, kRefusedCharacters)) return true;
    return core_.Services().fileSystem.CreateFileSystemObject()->FileExists(core_.CameraFile(newName));
}

void frmRename::OfferName(const std::string& name) {
    TextFileName.SetText(name);
    TextFileName.SetFocus();
    TextFileName.SelectAll();
}

/// The entry of the current row takes its new name and place.
void frmRename::MoveEntry(const std::string& newName) {
    list_.RemoveItem(list_.ListIndex());
    list_.SetSelected(list_.AddItem(newName), true);
}

void frmRename::CloseDialog() {
    Unload();
}

void RenameSelectedFile(const modMain& core, forms::ListBox& list) {
    try {
        if (list.SelCount() != 1) return;
        const std::string entry = CurrentEntry(list);
        if (!FileOf(core, entry)) {
            ReportMissingFile(core, entry);
            return;
        }
        frmRename dialog(core, list);
        core.Desktop().ShowModal(dialog);
    } catch (const std::exception&) {
        TraceFailure("open the rename window");
        // No window opens, and nothing has changed.
    }
}

}  // namespace halvenmoor
