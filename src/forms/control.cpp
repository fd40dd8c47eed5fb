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

void Control::SetCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    Changed();
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Changed();
    if (!enabled && HasFocus()) Owner().PassFocusOn();
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed();
    if (!visible && HasFocus()) Owner().PassFocusOn();
}

void Control::SetForeColor(Color color) {
    if (foreColor_ == color) return;
    foreColor_ = color;
    Changed();
}

void Control::SetAccessibleName(std::string name) {
    if (name == accessibleName_) return;
    accessibleName_ = std::move(name);
    Changed();
}

void Control::SetToolTip(std::string toolTip) {
    if (toolTip == toolTip_) return;
    toolTip_ = std::move(toolTip);
    Changed();
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
