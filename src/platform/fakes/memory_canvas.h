#pragma once

#include "forms/canvas.h"

#include <string>
#include <vector>

namespace halvenmoor::fakes {

/// A canvas of pixels in memory. A character of a text is a filled block of kCharacterWidth by
/// kCharacterHeight pixels.
class MemoryCanvas : public forms::Canvas {
public:
    static constexpr int kCharacterWidth = 7;
    static constexpr int kCharacterHeight = 9;

    explicit MemoryCanvas(const forms::Bounds& place);

    forms::PixelRect ClientRect() const override { return {0, 0, width_, height_}; }
    void FillRect(const forms::PixelRect& area, forms::Color color) override;
    void DrawText(std::string_view text, const forms::PixelRect& area, const forms::Font& font,
                  forms::Color color) override;
    void DrawLine(forms::PixelPoint from, forms::PixelPoint to, forms::Color color) override;
    void SetClip(const forms::PixelRect& area) override { clip_ = area; }
    void ClearClip() override { clip_ = ClientRect(); }
    void Refresh() override {}

    forms::Color At(int x, int y) const { return pixels_.at(static_cast<std::size_t>(y * width_ + x)); }
    /// The text that was drawn last.
    const std::string& LastText() const { return lastText_; }

private:
    int width_;
    int height_;
    forms::PixelRect clip_;
    std::vector<forms::Color> pixels_;
    std::string lastText_;
};

}  // namespace halvenmoor::fakes
