#include "forms/controls.h"

#include "forms/desktop.h"

#include <algorithm>

namespace halvenmoor::forms {

Control::Control(Form& form, forms::ControlKind kind, Design design)
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
    return form_.ActiveControl() == this;
}

void Control::SetFocus() {
    if (CanTakeFocus()) form_.FocusOn(this);
}

bool Control::UserFocused() {
    return Deliver([this] { SetFocus(); });
}

void Control::Changed() {
    form_.Mark(*this);
}

void Control::RaiseClick() {
    Desktop::RaiseIfSet(OnClick);
}

bool Control::Deliver(Event event) {
    return enabled_ && visible_ && form_.Owner().Deliver(form_, event);
}

bool Control::DeliverWithFocus(Event event) {
    return Deliver([&] {
        SetFocus();
        event();
    });
}

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

/// Lets the current row follow its item while others are added.
class ListBox::KeptRow {
public:
    explicit KeptRow(ListBox& list) : list_(list) {
        if (list.listIndex_ >= 0) text_ = list.List(list.listIndex_);
    }
    ~KeptRow() {
        while (list_.listIndex_ >= 0 && list_.List(list_.listIndex_) != text_) ++list_.listIndex_;
    }
    KeptRow(const KeptRow&) = delete;
    KeptRow& operator=(const KeptRow&) = delete;

private:
    ListBox& list_;
    std::string text_;
};

ListBox::ListBox(Form& form, Design design)
    : Control(form, ControlKind::ListBox, std::move(design)), items_(form.Owner().ListOrder()) {
}

int ListBox::TopIndex() const {
    return Owner().GetView() ? Owner().GetView()->TopIndex(*this) : 0;
}

Twips ListBox::RowHeight() const {
    return Owner().GetView() ? Owner().GetView()->RowHeight(*this) : 0;
}

void ListBox::SetSelected(int index, bool selected) {
    SortedItems::Item& item = items_.At(index);
    if (item.selected == selected) return;
    item.selected = selected;
    selCount_ += selected ? 1 : -1;
    if (selected) {
        listIndex_ = index;
        mustScroll_ = true;
    }
    Changed();
    RaiseClick();
}

int ListBox::AddItem(std::string text) {
    const KeptRow kept(*this);
    ItemsChanged();
    return items_.Add(std::move(text));
}

void ListBox::AddItems(std::vector<std::string> texts) {
    const KeptRow kept(*this);
    ItemsChanged();
    items_.Add(std::move(texts));
}

void ListBox::RemoveItem(int index) {
    const bool wasSelected = items_.At(index).selected;
    ItemsChanged();
    items_.Remove(index);
    ItemsGone({index}, wasSelected ? 1 : 0);
}

void ListBox::Clear() {
    items_.Clear();
    selCount_ = 0;
    listIndex_ = -1;
    ItemsChanged();
}

bool ListBox::MoveItemsTo(ListBox& target, const std::function<bool(int)>& wanted) {
    std::vector<int> positions;
    int selectedCount = 0;
    for (int i = 0; i < ListCount(); ++i) {
        if (!wanted(i)) continue;
        positions.push_back(i);
        if (Selected(i)) ++selectedCount;
    }
    if (positions.empty()) return false;
    const KeptRow kept(target);
    ItemsChanged();
    target.ItemsChanged();
    items_.MoveTo(target.items_, positions);
    ItemsGone(positions, selectedCount);
    return true;
}

void ListBox::ItemsGone(const std::vector<int>& positions, int selectedCount) {
    selCount_ -= selectedCount;
    const auto before = std::lower_bound(positions.begin(), positions.end(), listIndex_) - positions.begin();
    listIndex_ = std::min(listIndex_ - static_cast<int>(before), ListCount() - 1);
}

bool ListBox::UserSelect(const std::vector<int>& rows, int current) {
    return DeliverWithFocus([&] {
        for (const int row : rows) static_cast<void>(items_.At(row));  // fails before anything has changed
        for (int i = 0; i < ListCount(); ++i) items_.At(i).selected = false;
        for (const int row : rows) items_.At(row).selected = true;
        selCount_ = static_cast<int>(rows.size());
        listIndex_ = current;
        Changed();
        RaiseClick();
    });
}

bool ListBox::UserStartDrag() {
    return Deliver([this] { Desktop::RaiseIfSet(OnStartDrag); });
}

bool ListBox::UserDrop() {
    if (dropMode_ != DropMode::Manual) return false;
    return Deliver([this] { Desktop::RaiseIfSet(OnDragDrop); });
}

bool ListBox::UserCompleteDrag() {
    return Deliver([this] { Desktop::RaiseIfSet(OnCompleteDrag); });
}

void ListBox::ItemsChanged() {
    ++itemsVersion_;
    Changed();
}

ComboBox::ComboBox(Form& form, Design design)
    : Control(form, ControlKind::ComboBox, std::move(design)),
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
    return DeliverWithFocus([&] {
        const bool same = index == listIndex_;
        SetListIndex(index);
        if (same) RaiseClick();
    });
}

bool ComboBox::UserTyped(std::string text) {
    return DeliverWithFocus([&] {
        text_ = std::move(text);
        listIndex_ = -1;
        Changed();
        Desktop::RaiseIfSet(OnChange);
    });
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
