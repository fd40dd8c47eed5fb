#include "forms/controls.h"

#include "forms/desktop.h"

namespace halvenmoor::forms {

bool CommandButton::UserPress() {
    return DeliverWithFocus([this] { RaiseClick(); });
}

CheckBox::CheckBox(Form& form, Design design)
    : Control(form, ControlKind::CheckBox, std::move(design)), value_(AtDesign().on) {
}

void CheckBox::SetValue(bool value) {
    if (value == value_) return;
    value_ = value;
    Changed();
    RaiseClick();
}

bool CheckBox::UserPress() {
    return DeliverWithFocus([this] { SetValue(!value_); });
}

OptionButton::OptionButton(Form& form, Design design)
    : Control(form, ControlKind::OptionButton, std::move(design)), value_(AtDesign().on) {
}

void OptionButton::SetValue(bool value) {
    if (value == value_) return;
    if (!value) {
        value_ = false;
        Changed();
        return;
    }
    TurnOn();
    RaiseClick();
}

bool OptionButton::UserPress() {
    return DeliverWithFocus([this] {
        TurnOn();
        RaiseClick();
    });
}

void OptionButton::TurnOn() {
    for (Control* other : Owner().Controls()) {
        const bool sameGroup =
            other->Kind() == ControlKind::OptionButton && other->AtDesign().frame == AtDesign().frame;
        if (sameGroup && other != this) static_cast<OptionButton*>(other)->SetValue(false);
    }
    value_ = true;
    Changed();
}

PictureBox::PictureBox(Form& form, Design design)
    : Control(form, ControlKind::PictureBox, std::move(design)), bordered_(AtDesign().bordered) {
}

void PictureBox::SetBordered(bool bordered) {
    if (bordered == bordered_) return;
    bordered_ = bordered;
    Changed();
}

Canvas* PictureBox::GetCanvas() {
    return Owner().GetView() ? &Owner().GetView()->CanvasOf(*this) : nullptr;
}

void TextBox::SelectAll() {
    mustSelect_ = true;
    Changed();
}

bool TextBox::UserTyped(std::string text) {
    return DeliverWithFocus([&] { SetCaption(std::move(text)); });
}

}  // namespace halvenmoor::forms
