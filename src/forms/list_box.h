#pragma once

#include "forms/control.h"
#include "forms/sorted_items.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace halvenmoor::forms {

/// A list with sorted items, extended multiple selection, and items that can be dragged.
class ListBox : public Control {
public:
    enum class DropMode { None, Manual };

    explicit ListBox(Design design);

    int ListCount() const { return items_.Count(); }
    const std::string& List(int index) const { return items_.At(index).text; }
    bool Selected(int index) const { return items_.At(index).selected; }
    int SelCount() const { return selCount_; }
    /// The current row, -1 when there is none.
    int ListIndex() const { return listIndex_; }
    /// The first row that shows; 0 while the window is not open.
    int TopIndex() const;
    /// 0 while the window is not open.
    Twips RowHeight() const;

    /// Raises the click when the selection changes. Selecting a row makes it the current one and scrolls to
    /// it.
    void SetSelected(int index, bool selected);
    /// Whether the current row has to scroll into view since the last call.
    bool TakeScroll() { return std::exchange(mustScroll_, false); }
    /// Returns the row that the item gets. Fails as AddItems does.
    int AddItem(std::string text);
    /// Items beyond the limit of SortedItems are an error; those before it stay. Any other failure adds none.
    void AddItems(std::vector<std::string> texts);
    void RemoveItem(int index);
    void Clear();
    /// Moves in one pass all items that are wanted to another list, where they are not selected. All or
    /// nothing: a failure leaves both lists as they were. False when none was wanted.
    bool MoveItemsTo(ListBox& target, const std::function<bool(int)>& wanted);

    DropMode OLEDropMode() const { return dropMode_; }
    void SetOLEDropMode(DropMode mode) { dropMode_ = mode; }

    /// What a drag from here shows; to be set when it starts. UTF-8.
    const std::string& DragText() const { return dragText_; }
    void SetDragText(std::string text) { dragText_ = std::move(text); }

    /// After the click, once the mouse is up.
    std::function<void()> OnDoubleClick;
    std::function<void()> OnStartDrag;
    std::function<void()> OnDragDrop;
    std::function<void()> OnCompleteDrag;

    /// The user made this the selection, with the given current row.
    bool UserSelect(const std::vector<int>& rows, int current);
    /// On a row; after its UserSelect.
    bool UserDoubleClick();
    bool UserStartDrag();
    /// A drag of this program was dropped here.
    bool UserDrop();
    bool UserCompleteDrag();

    /// Grows with every change of the items; the selection does not count.
    std::uint64_t ItemsVersion() const { return itemsVersion_; }

private:
    class KeptRow;

    void ItemsGone(const std::vector<int>& positions, int selectedCount);
    void ItemsChanged();

    SortedItems items_;
    int selCount_ = 0;
    int listIndex_ = -1;
    bool mustScroll_ = false;
    DropMode dropMode_ = DropMode::None;
    std::string dragText_;
    std::uint64_t itemsVersion_ = 0;
};

}  // namespace halvenmoor::forms
