#include "platform/qt/windows/canvas.h"

#include "platform/qt/windows/conversions.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>

namespace halvenmoor::qt {

forms::PixelRect ImageCanvas::ClientRect() const {
    return {0, 0, widget_.width() - 2 * border_, widget_.height() - 2 * border_};
}

void ImageCanvas::FillRect(const forms::PixelRect& area, forms::Color color) {
    Paint([&](QPainter& painter) { painter.fillRect(ToRect(area), ToQColor(color)); });
}

void ImageCanvas::DrawText(std::string_view text, const forms::PixelRect& area, const forms::Font& font,
                           forms::Color color) {
    Paint([&](QPainter& painter) {
        painter.setFont(ToFont(font));
        painter.setPen(ToQColor(color));
        painter.drawText(ToRect(area), Qt::AlignCenter | Qt::TextSingleLine, ToText(text, page_));
    });
}

void ImageCanvas::DrawLine(forms::PixelPoint from, forms::PixelPoint to, forms::Color color) {
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const int steps = std::max(std::abs(dx), std::abs(dy));
    const QBrush brush(ToQColor(color));
    Paint([&](QPainter& painter) {
        for (int i = 0; i < steps; ++i) {
            painter.fillRect(from.x + dx * i / steps, from.y + dy * i / steps, 1, 1, brush);
        }
    });
}

void ImageCanvas::SetClip(const forms::PixelRect& area) {
    clip_ = ToRect(area);
}

void ImageCanvas::Refresh() {
    // Painting within painting is not possible; the widget paints right after.
    if (widget_.window()->testAttribute(Qt::WA_WState_InPaintEvent)) {
        widget_.update();
    } else {
        widget_.repaint();
    }
}

template <class Drawing>
void ImageCanvas::Paint(const Drawing& drawing) {
    FitImage();
    if (image_.isNull() || (clip_ && clip_->isEmpty())) return;
    QPainter painter(&image_);
    if (clip_) painter.setClipRect(*clip_);
    drawing(painter);
}

void ImageCanvas::FitImage() {
    const double scale = widget_.devicePixelRatioF();
    const QSize size = (QSizeF(ToRect(ClientRect()).size()) * scale).toSize();
    if (image_.size() == size) return;
    image_ = QImage(size, QImage::Format_RGB32);
    image_.setDevicePixelRatio(scale);
    image_.fill(widget_.palette().color(QPalette::Window));
    widget_.setAttribute(Qt::WA_OpaquePaintEvent);
}

}  // namespace halvenmoor::qt
