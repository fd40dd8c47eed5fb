#include "forms/list_box.h"

#include "forms/desktop.h"

#include <algorithm>

namespace halvenmoor::forms {

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

ListBox::ListBox(Design design)
    : Control(ControlKind::ListBox, std::move(design)), items_(Owner().Owner().ListOrder()) {
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
    Desktop::Raise(OnClick);
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
    return Desktop::Deliver(*this, [&] {
        SetFocus();
        for (const int row : rows) static_cast<void>(items_.At(row));  // fails before anything has changed
        for (int i = 0; i < ListCount(); ++i) items_.At(i).selected = false;
        for (const int row : rows) items_.At(row).selected = true;
        selCount_ = static_cast<int>(rows.size());
        listIndex_ = current;
        Changed();
        Desktop::Raise(OnClick);
    });
}

bool ListBox::UserDoubleClick() {
    return Desktop::Deliver(*this, OnDoubleClick);
}

bool ListBox::UserStartDrag() {
    return Desktop::Deliver(*this, OnStartDrag);
}

bool ListBox::UserDrop() {
    if (dropMode_ != DropMode::Manual) return false;
    return Desktop::Deliver(*this, OnDragDrop);
}

bool ListBox::UserCompleteDrag() {
    return Desktop::Deliver(*this, OnCompleteDrag);
}

void ListBox::ItemsChanged() {
    ++itemsVersion_;
    Changed();
}

}  // namespace halvenmoor::forms
