#include "forms/controls.h"

#include "forms/desktop.h"

#include <algorithm>

namespace halvenmoor::forms {

Control::Control(Form& form, forms::Kind kind, Design design)
    : form_(form),
      kind_(kind),
      design_(std::move(design)),
      caption_(design_.text),
      enabled_(design_.enabled),
      visible_(design_.visible) {
    form_.Add(*this);
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
    if (!enabled && HasFocus()) form_.PassFocusOn();
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed();
    if (!visible && HasFocus()) form_.PassFocusOn();
}

void Control::SetForeColor(Color color) {
    if (foreColor_ == color) return;
    foreColor_ = color;
    Changed();
}

bool Control::CanTakeFocus() const {
    const bool takesKeys = kind_ != Kind::Label && kind_ != Kind::Frame && kind_ != Kind::PictureBox;
    return takesKeys && enabled_ && visible_;
}

bool Control::HasFocus() const {
    return form_.ActiveControl() == this;
}

void Control::SetFocus() {
    if (CanTakeFocus()) form_.FocusOn(this);
}

bool Control::UserCanAct() const {
    return enabled_ && visible_ && form_.Owner().Accepts(form_);
}

bool Control::UserFocused() {
    return Deliver([this] { SetFocus(); });
}

void Control::Changed() {
    form_.Mark(*this);
}

void Control::RaiseClick() {
    Desktop::Raise(OnClick);
}

bool Control::Deliver(const std::function<void()>& event) {
    return enabled_ && visible_ && form_.Owner().Deliver(form_, event);
}

bool CommandButton::UserPress() {
    return Deliver([this] { RaiseClick(); });
}

CheckBox::CheckBox(Form& form, Design design)
    : Control(form, Kind::CheckBox, std::move(design)), value_(AtDesign().on) {
}

void CheckBox::SetValue(bool value) {
    if (value == value_) return;
    value_ = value;
    Changed();
    RaiseClick();
}

bool CheckBox::UserPress() {
    return Deliver([this] { SetValue(!value_); });
}

OptionButton::OptionButton(Form& form, Design design)
    : Control(form, Kind::OptionButton, std::move(design)), value_(AtDesign().on) {
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
    return Deliver([this] {
        TurnOn();
        RaiseClick();
    });
}

void OptionButton::TurnOn() {
    for (Control* other : Owner().Controls()) {
        const bool sameGroup =
            other->Kind() == Kind::OptionButton && other->AtDesign().frame == AtDesign().frame;
        if (sameGroup && other != this) static_cast<OptionButton*>(other)->SetValue(false);
    }
    value_ = true;
    Changed();
}

ListBox::ListBox(Form& form, Design design)
    : Control(form, Kind::ListBox, std::move(design)), items_(form.Owner().ListOrder()) {
}

int ListBox::TopIndex() const {
    return Owner().View() ? Owner().View()->TopIndex(*this) : 0;
}

void ListBox::SetSelected(int index, bool selected) {
    SortedItems::Item& item = items_.At(index);
    if (item.selected == selected) return;
    item.selected = selected;
    selCount_ += selected ? 1 : -1;
    if (selected) listIndex_ = index;
    Changed();
    RaiseClick();
}

void ListBox::AddItems(std::vector<std::string> texts) {
    const std::string current = listIndex_ >= 0 ? List(listIndex_) : std::string();
    ItemsChanged();
    items_.Add(std::move(texts));
    while (listIndex_ >= 0 && List(listIndex_) != current) ++listIndex_;
}

void ListBox::RemoveItem(int index) {
    static_cast<void>(items_.At(index));
    TakeItemsIf([index](int i) { return i == index; });
}

void ListBox::Clear() {
    items_.Clear();
    selCount_ = 0;
    listIndex_ = -1;
    ItemsChanged();
}

std::vector<std::string> ListBox::TakeItemsIf(const std::function<bool(int)>& wanted) {
    std::vector<int> positions;
    for (int i = 0; i < ListCount(); ++i) {
        if (wanted(i)) positions.push_back(i);
    }
    if (positions.empty()) return {};
    std::vector<std::string> texts;
    texts.reserve(positions.size());
    for (SortedItems::Item& item : items_.Take(positions)) {
        if (item.selected) --selCount_;
        texts.push_back(std::move(item.text));
    }
    const auto before = std::lower_bound(positions.begin(), positions.end(), listIndex_) - positions.begin();
    listIndex_ = std::min(listIndex_ - static_cast<int>(before), ListCount() - 1);
    ItemsChanged();
    return texts;
}

bool ListBox::UserSelect(const std::vector<int>& rows, int current) {
    return Deliver([&] {
        for (int i = 0; i < ListCount(); ++i) items_.At(i).selected = false;
        for (const int row : rows) items_.At(row).selected = true;
        selCount_ = static_cast<int>(rows.size());
        listIndex_ = current;
        Changed();
        RaiseClick();
    });
}

bool ListBox::UserStartDrag() {
    return Deliver([this] { Desktop::Raise(OnStartDrag); });
}

bool ListBox::UserDrop() {
    if (dropMode_ != DropMode::Manual) return false;
    return Deliver([this] { Desktop::Raise(OnDragDrop); });
}

bool ListBox::UserCompleteDrag() {
    return Deliver([this] { Desktop::Raise(OnCompleteDrag); });
}

void ListBox::ItemsChanged() {
    ++itemsVersion_;
    Changed();
}

ComboBox::ComboBox(Form& form, Design design)
    : Control(form, Kind::ComboBox, std::move(design)),
      items_(form.Owner().ListOrder()),
      text_(AtDesign().text) {
}

void ComboBox::SetListIndex(int index) {
    if (index == listIndex_) return;
    text_ = index >= 0 ? List(index) : std::string();
    listIndex_ = index;
    Changed();
    RaiseClick();
}

void ComboBox::AddItem(std::string text) {
    const int place = items_.Add(std::move(text));
    if (place <= listIndex_) ++listIndex_;
    ++itemsVersion_;
    Changed();
}

void ComboBox::Clear() {
    items_.Clear();
    listIndex_ = -1;
    text_.clear();
    ++itemsVersion_;
    Changed();
}

bool ComboBox::UserChoose(int index) {
    if (index < 0 || index >= ListCount()) return false;
    return Deliver([&] {
        const bool same = index == listIndex_;
        SetListIndex(index);
        if (same) RaiseClick();
    });
}

bool ComboBox::UserTyped(std::string text) {
    return Deliver([&] {
        text_ = std::move(text);
        listIndex_ = -1;
        Changed();
        Desktop::Raise(OnChange);
    });
}

PictureBox::PictureBox(Form& form, Design design)
    : Control(form, Kind::PictureBox, std::move(design)), bordered_(AtDesign().bordered) {
}

void PictureBox::SetBordered(bool bordered) {
    if (bordered == bordered_) return;
    bordered_ = bordered;
    Changed();
}

Canvas* PictureBox::Canvas() {
    return Owner().View() ? &Owner().View()->Canvas(*this) : nullptr;
}

bool TextBox::UserTyped(std::string text) {
    return Deliver([&] { SetCaption(std::move(text)); });
}

}  // namespace halvenmoor::forms
