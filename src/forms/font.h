#pragma once

#include <string>

namespace halvenmoor::forms {

/// A font by family name and size in points.
struct Font {
    std::string name = "Verdana";
    double size = 8.25;

    bool operator==(const Font&) const = default;
};

}  // namespace halvenmoor::forms
