#include "forms/control.h"

#include "forms/desktop.h"

namespace halvenmoor::forms {

Control::Control(forms::ControlKind kind, Design design)
    : kind_(kind),
      design_(std::move(design)),
      caption_(design_.text),
      enabled_(design_.enabled),
      visible_(design_.visible) {
    Owner().Add(*this);
}

void Control::SetEnabled(bool enabled) {
    if (Change(enabled_, enabled) && !enabled && HasFocus()) Owner().PassFocusOn();
}

void Control::SetVisible(bool visible) {
    if (Change(visible_, visible) && !visible && HasFocus()) Owner().PassFocusOn();
}

bool Control::CanTakeFocus() const {
    const bool takesKeys =
        kind_ != ControlKind::Label && kind_ != ControlKind::Frame && kind_ != ControlKind::PictureBox;
    return takesKeys && enabled_ && visible_;
}

bool Control::HasFocus() const {
    return Owner().ActiveControl() == this;
}

void Control::SetFocus() {
    if (CanTakeFocus()) Owner().FocusOn(this);
}

bool Control::UserFocused() {
    return Desktop::Deliver(*this, [this] { SetFocus(); });
}

void Control::Changed() {
    Owner().Mark(*this);
}

}  // namespace halvenmoor::forms
