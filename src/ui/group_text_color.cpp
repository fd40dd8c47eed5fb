#include "ui/group_text_color.h"

#include "base/failure.h"

#include <exception>

namespace halvenmoor {

bool GetGroupTextColor(const platform::Theme& theme, forms::Color& color) {
    try {
        if (!theme.IsThemed()) return false;
        color = theme.GroupBoxTextColor().value_or(color);
        return true;
    } catch (const std::exception&) {
        TraceFailure("read the theme");
        return false;
    }
}

forms::Color HeadingColor(const platform::Theme& theme) {
    constexpr forms::Color kBlack = forms::Rgb(0, 0, 0);
    forms::Color color = kBlack;
    if (GetGroupTextColor(theme, color)) return color;
    return theme.SystemColor(forms::kButtonTextNumber).value_or(kBlack);
}

}  // namespace halvenmoor
