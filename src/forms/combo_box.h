#pragma once

#include "forms/control.h"
#include "forms/sorted_items.h"

#include <cstdint>
#include <functional>
#include <string>

namespace halvenmoor::forms {

/// A sorted choice with a text field.
class ComboBox : public Control {
public:
    explicit ComboBox(Design design);

    int ListCount() const { return items_.Count(); }
    const std::string& List(int index) const { return items_.At(index).text; }
    /// The chosen item, -1 when there is none.
    int ListIndex() const { return listIndex_; }
    const std::string& Text() const { return text_; }

    /// Shows the item in the text field. Raises the click when the index changes.
    void SetListIndex(int index);
    void AddItem(std::string text);
    void Clear();

    std::function<void()> OnChange;

    bool UserChoose(int index);
    /// The user edited the text field: no item is chosen any more.
    bool UserTyped(std::string text);

    /// Grows with every change of the items; the choice does not count.
    std::uint64_t ItemsVersion() const { return itemsVersion_; }

private:
    SortedItems items_;
    int listIndex_ = -1;
    std::string text_;
    std::uint64_t itemsVersion_ = 0;
};

}  // namespace halvenmoor::forms
