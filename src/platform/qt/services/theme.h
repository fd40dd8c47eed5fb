#pragma once

#include "platform/services.h"

#include <optional>

namespace halvenmoor::qt {

/// The colours of the palette in use. Button face is a tone on which black can be read, highlight one on
/// which white can, whatever the palette.
class QtTheme : public platform::Theme {
public:
    std::optional<forms::Color> SystemColor(int number) const override;
    bool IsThemed() const override { return true; }
    std::optional<forms::Color> GroupBoxTextColor() const override;
};

}  // namespace halvenmoor::qt
