#include "forms/controls.h"

#include "forms/desktop.h"

namespace halvenmoor::forms {

CommandButton::CommandButton(Design design) : Control(ControlKind::CommandButton, std::move(design)) {
    const std::string& key = AtDesign().key;
    if (key.empty()) return;
    Owner().AddShortcut({key, nullptr, [this] { UserPress(); }});
    SetToolTip(key);
}

bool CommandButton::UserPress() {
    return Desktop::Deliver(*this, [this] {
        SetFocus();
        Desktop::Raise(OnClick);
    });
}

CheckBox::CheckBox(Design design) : Control(ControlKind::CheckBox, std::move(design)), value_(AtDesign().on) {
}

void CheckBox::SetValue(bool value) {
    if (Change(value_, value)) Desktop::Raise(OnClick);
}

bool CheckBox::UserPress() {
    return Desktop::Deliver(*this, [this] {
        SetFocus();
        SetValue(!value_);
    });
}

OptionButton::OptionButton(Design design)
    : Control(ControlKind::OptionButton, std::move(design)), value_(AtDesign().on) {
}

void OptionButton::SetValue(bool value) {
    if (!value) {
        Change(value_, false);
    } else if (!value_) {
        TurnOn();
        Desktop::Raise(OnClick);
    }
}

bool OptionButton::UserPress() {
    return Desktop::Deliver(*this, [this] {
        SetFocus();
        TurnOn();
        Desktop::Raise(OnClick);
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

PictureBox::PictureBox(Design design)
    : Control(ControlKind::PictureBox, std::move(design)), bordered_(AtDesign().bordered) {
}

Canvas* PictureBox::GetCanvas() {
    return Owner().GetView() ? &Owner().GetView()->CanvasOf(*this) : nullptr;
}

void TextBox::SelectAll() {
    mustSelect_ = true;
    Changed();
}

bool TextBox::UserTyped(std::string text) {
    return Desktop::Deliver(*this, [&] {
        SetFocus();
        SetCaption(std::move(text));
        Changed();  // even where the text is the same: the view may show it otherwise
    });
}

}  // namespace halvenmoor::forms
