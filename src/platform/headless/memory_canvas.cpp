#include "platform/headless/memory_canvas.h"

#include "core/text/decode.h"

#include <algorithm>
#include <cstdlib>

namespace halvenmoor::headless {

MemoryCanvas::MemoryCanvas(const forms::Place& place)
    : width_(forms::ToPixels(place.width)),
      height_(forms::ToPixels(place.height)),
      clip_{0, 0, width_, height_} {
    pixels_.resize(static_cast<std::size_t>(width_ * height_));
}

void MemoryCanvas::FillRect(const forms::PixelRect& area, forms::Color color) {
    const int left = std::max({area.left, clip_.left, 0});
    const int right = std::min({area.right, clip_.right, width_});
    const int bottom = std::min({area.bottom, clip_.bottom, height_});
    for (int y = std::max({area.top, clip_.top, 0}); y < bottom; ++y) {
        const auto row = pixels_.begin() + y * width_;
        if (left < right) std::fill(row + left, row + right, color);
    }
}

void MemoryCanvas::DrawText(std::string_view text, const forms::PixelRect& area, const forms::Font&,
                            forms::Color color) {
    const int width = static_cast<int>(text::CharacterCount(text)) * kCharacterWidth;
    const int left = (area.left + area.right - width) / 2;
    const int top = (area.top + area.bottom - kCharacterHeight) / 2;
    FillRect({left, top, left + width, top + kCharacterHeight}, color);
}

void MemoryCanvas::DrawLine(forms::PixelPoint from, forms::PixelPoint to, forms::Color color) {
    const int steps = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    for (int i = 0; i < steps; ++i) {
        const int x = from.x + (to.x - from.x) * i / steps;
        const int y = from.y + (to.y - from.y) * i / steps;
        FillRect({x, y, x + 1, y + 1}, color);
    }
}

}  // namespace halvenmoor::headless
