#include "platform/headless/list_actions.h"

namespace halvenmoor::headless {

bool Select(forms::ListBox& list, const std::vector<std::string>& texts) {
    std::vector<int> rows;
    for (const std::string& text : texts) {
        const int row = IndexOf(list, text);
        if (row < 0) return false;
        rows.push_back(row);
    }
    return list.UserSelect(rows, rows.empty() ? list.ListIndex() : rows.back());
}

bool Drag(forms::ListBox& from, forms::ListBox& to) {
    if (!from.UserStartDrag()) return false;
    const bool dropped = to.UserDrop();
    from.UserCompleteDrag();
    return dropped;
}

int IndexOf(const forms::ListBox& list, const std::string& text) {
    for (int i = 0; i < list.ListCount(); ++i) {
        if (list.List(i) == text) return i;
    }
    return -1;
}

std::vector<std::string> ItemsOf(const forms::ListBox& list) {
    std::vector<std::string> items;
    for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
    return items;
}

}  // namespace halvenmoor::headless
