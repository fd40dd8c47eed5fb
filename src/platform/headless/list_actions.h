#pragma once

#include "forms/list_box.h"

#include <string>
#include <vector>

namespace halvenmoor::headless {

// What a user does with a list, through the events of the forms layer. False where the user cannot.

/// Selects these items and no others; the last one becomes the current row.
bool Select(forms::ListBox& list, const std::vector<std::string>& texts);
/// Drags what is selected in one list to another.
bool Drag(forms::ListBox& from, forms::ListBox& to);
/// The index of an item, -1 when the list has none of this text.
int IndexOf(const forms::ListBox& list, const std::string& text);
std::vector<std::string> ItemsOf(const forms::ListBox& list);

}  // namespace halvenmoor::headless
