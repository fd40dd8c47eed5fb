#include "ui/group_text_color.h"

#include <exception>

namespace halvenmoor {

bool GetGroupTextColor(const platform::Theme& theme, forms::Color& color) {
    try {
        if (!theme.IsThemed()) return false;
        color = theme.GroupBoxTextColor().value_or(color);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

forms::Color HeadingColor(const platform::Theme& theme) {
    forms::Color color = forms::Rgb(0, 0, 0);
    return GetGroupTextColor(theme, color) ? color : forms::kButtonText;
}

}  // namespace halvenmoor
