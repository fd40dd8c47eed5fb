#pragma once

#include "base/text/codepage.h"
#include "forms/canvas.h"

#include <QImage>
#include <QRect>
#include <QWidget>
#include <optional>

namespace halvenmoor::qt {

/// A persistent image in the resolution of the screen; its pixels are device-independent ones. The widget
/// paints it when it is told to repaint.
class ImageCanvas : public forms::Canvas {
public:
    /// Both outlive the canvas.
    ImageCanvas(QWidget& widget, const text::CodePage& page) : widget_(widget), page_(page) {}

    /// None until something was drawn.
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
    template <class Drawing>
    void Paint(const Drawing& drawing);
    void FitImage();

    QWidget& widget_;
    const text::CodePage& page_;
    QImage image_;
    int border_ = 0;
    std::optional<QRect> clip_;
};

}  // namespace halvenmoor::qt
