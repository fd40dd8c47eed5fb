#pragma once

#include "forms/color.h"
#include "platform/services.h"

namespace halvenmoor {

/// True if the desktop is themed; color then holds the text colour of a group box, or what it held before if
/// the theme does not tell.
bool GetGroupTextColor(const platform::Theme& theme, forms::Color& color);

/// The colour of the heading labels of a window, a plain one: that of a themed group box, else of button
/// text.
forms::Color HeadingColor(const platform::Theme& theme);

}  // namespace halvenmoor
