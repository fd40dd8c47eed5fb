#include "platform/fakes/memory_canvas.h"

#include "base/text/decode.h"

#include <algorithm>
#include <utility>

namespace halvenmoor::fakes {

namespace {

/// Which places a line covers along one axis, the second one excluded.
std::pair<int, int> Covered(int from, int to) {
    if (to < from) return {to + 1, from + 1};
    return {from, std::max(to, from + 1)};
}

}  // namespace

MemoryCanvas::MemoryCanvas(const forms::Bounds& place)
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
    lastText_ = text;
    const int width = static_cast<int>(text::CharacterCount(text)) * kCharacterWidth;
    const int left = (area.left + area.right - width) / 2;
    const int top = (area.top + area.bottom - kCharacterHeight) / 2;
    FillRect({left, top, left + width, top + kCharacterHeight}, color);
}

void MemoryCanvas::DrawLine(forms::PixelPoint from, forms::PixelPoint to, forms::Color color) {
    const auto [left, right] = Covered(from.x, to.x);
    const auto [top, bottom] = Covered(from.y, to.y);
    FillRect({left, top, right, bottom}, color);
}

}  // namespace halvenmoor::fakes
