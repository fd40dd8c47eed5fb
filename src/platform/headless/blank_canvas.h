#pragma once

#include "forms/canvas.h"

#include <string_view>

namespace halvenmoor::headless {

/// A canvas of which nobody sees anything.
class BlankCanvas : public forms::Canvas {
public:
    explicit BlankCanvas(const forms::Bounds& place)
        : rect_{0, 0, forms::ToPixels(place.width), forms::ToPixels(place.height)} {}

    forms::PixelRect ClientRect() const override { return rect_; }
    void FillRect(const forms::PixelRect&, forms::Color) override {}
    void DrawText(std::string_view, const forms::PixelRect&, const forms::Font&, forms::Color) override {}
    void DrawLine(forms::PixelPoint, forms::PixelPoint, forms::Color) override {}
    void SetClip(const forms::PixelRect&) override {}
    void ClearClip() override {}
    void Refresh() override {}

private:
    forms::PixelRect rect_;
};

}  // namespace halvenmoor::headless
