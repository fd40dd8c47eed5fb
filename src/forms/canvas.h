#pragma once

#include "forms/color.h"
#include "forms/font.h"
#include "forms/geometry.h"

#include <string_view>

namespace halvenmoor::forms {

/// The persistent image of a picture box. Colours are plain colours; nothing shows before Refresh.
class Canvas {
public:
    virtual ~Canvas() = default;

    /// The drawing area, in pixels, with its corner at 0, 0.
    virtual PixelRect ClientRect() const = 0;
    virtual void FillRect(const PixelRect& area, Color color) = 0;
    /// One line of UTF-8 text without a background, centred both ways in the area.
    virtual void DrawText(std::string_view text, const PixelRect& area, const Font& font, Color color) = 0;
    /// A horizontal or vertical line one pixel wide. The pixel at its end is not drawn.
    virtual void DrawLine(PixelPoint from, PixelPoint to, Color color) = 0;
    /// Limits all drawing to the area, until ClearClip. An empty area lets nothing through.
    virtual void SetClip(const PixelRect& area) = 0;
    virtual void ClearClip() = 0;
    /// Brings the image to the screen at once.
    virtual void Refresh() = 0;
};

}  // namespace halvenmoor::forms
