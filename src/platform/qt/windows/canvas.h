#pragma once

#include "base/text/codepage.h"
#include "forms/canvas.h"

#include <QImage>
#include <QRect>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

namespace halvenmoor::qt {

/// A persistent image in the resolution of the screen; its pixels are device-independent ones. What is drawn
/// is recorded until Refresh, which paints and shows it only when it differs from the drawing before: an
/// export of many files draws the same bar hundreds of times.
class ImageCanvas : public forms::Canvas {
public:
    /// Both outlive the canvas.
    ImageCanvas(QWidget& widget, const text::CodePage& page) : widget_(widget), page_(page) {}

    /// None until a drawing was shown.
    const QImage& Image() const { return image_; }
    /// The border of the picture box lies around the image.
    void SetBorder(int pixels) { border_ = pixels; }

    forms::PixelRect ClientRect() const override;
    void FillRect(const forms::PixelRect& area, forms::Color color) override;
    void DrawText(std::string_view text, const forms::PixelRect& area, const forms::Font& font,
                  forms::Color color) override;
    void DrawLine(forms::PixelPoint from, forms::PixelPoint to, forms::Color color) override;
    void SetClip(const forms::PixelRect& area) override;
    void ClearClip() override { clip_.reset(); }
    void Refresh() override;

private:
    struct Text {
        std::string text;
        forms::Font font;

        bool operator==(const Text&) const = default;
    };

    struct Command {
        QRect area;
        forms::Color color;
        /// None to fill the area.
        std::optional<Text> text;
        std::optional<QRect> clip;

        bool operator==(const Command&) const = default;
    };

    void Record(const QRect& area, forms::Color color, std::optional<Text> text = {});
    /// Whether the image was made anew, for the size and scale of the widget.
    bool FitImage();
    void PaintImage();

    QWidget& widget_;
    const text::CodePage& page_;
    QImage image_;
    int border_ = 0;
    std::optional<QRect> clip_;
    std::vector<Command> drawing_;
    std::vector<Command> shown_;
};

}  // namespace halvenmoor::qt
