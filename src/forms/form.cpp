#include "forms/form.h"

#include "forms/desktop.h"

#include <algorithm>
#include <utility>

namespace halvenmoor::forms {

Form::Form(Desktop& desktop, FormDesign design)
    : desktop_(desktop), design_(std::move(design)), caption_(design_.title) {
}

Form::~Form() {
    desktop_.Forget(*this);
}

Point Form::Position() const {
    return view_ && !moved_ ? view_->Position() : position_;
}

FrameMetrics Form::WindowFrame() const {
    return view_ ? view_->WindowFrame() : FrameMetrics();
}

void Form::MoveTo(Point position) {
    position_ = position;
    moved_ = true;
}

std::optional<Point> Form::TakeMove() {
    if (!moved_) return std::nullopt;
    moved_ = false;
    return position_;
}

void Form::Unload() {
    desktop_.Close(*this, CloseReason::Program);
}

bool Form::UserClose() {
    if (!design_.closeBox) return false;
    return Desktop::Deliver(*this, [this] { desktop_.Close(*this, CloseReason::User); });
}

bool Form::UserEscape() {
    return cancelButton_ != nullptr && cancelButton_->UserPress();
}

bool Form::UserKeyPress(char32_t key) {
    if (!design_.keyPreview) return false;
    bool consumed = false;
    Desktop::Deliver(*this, [&] { consumed = KeyPress(key); });
    return consumed;
}

bool Form::UserShortcut(std::string_view key) {
    const auto shortcut = std::find_if(shortcuts_.begin(), shortcuts_.end(), [&](const Shortcut& candidate) {
        const bool isHeard = candidate.control == nullptr || candidate.control->HasFocus();
        return isHeard && candidate.key == key;
    });
    return shortcut != shortcuts_.end() && Desktop::Deliver(*this, shortcut->action);
}

void Form::Painted() {
    Desktop::Raise([this] { Paint(); });
    if (view_ && HasChanges()) view_->Update();
}

void Form::Mark(Control& control) {
    if (std::find(changed_.begin(), changed_.end(), &control) == changed_.end()) changed_.push_back(&control);
}

void Form::FocusOn(Control* control) {
    if (control == active_) return;
    Control* const before = std::exchange(active_, control);
    if (before != nullptr) Desktop::Raise(before->OnLostFocus);
    if (active_ == control && control != nullptr) Desktop::Raise(control->OnGotFocus);
}

std::vector<Control*> Form::InTabOrder() const {
    std::vector<Control*> ordered = controls_;
    std::stable_sort(ordered.begin(), ordered.end(), [](const Control* a, const Control* b) {
        return a->AtDesign().tab < b->AtDesign().tab;
    });
    return ordered;
}

void Form::PassFocusOn() {
    std::vector<Control*> ordered = InTabOrder();
    const auto present = std::find(ordered.begin(), ordered.end(), active_);
    if (present != ordered.end()) std::rotate(ordered.begin(), present, ordered.end());
    const auto next = std::find_if(ordered.begin(), ordered.end(),
                                   [](const Control* control) { return control->CanTakeFocus(); });
    FocusOn(next != ordered.end() ? *next : nullptr);
}

}  // namespace halvenmoor::forms
