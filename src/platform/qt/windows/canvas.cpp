#include "platform/qt/windows/canvas.h"

#include "platform/qt/windows/conversions.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace halvenmoor::qt {

forms::PixelRect ImageCanvas::ClientRect() const {
    return {0, 0, widget_.width() - 2 * border_, widget_.height() - 2 * border_};
}

void ImageCanvas::FillRect(const forms::PixelRect& area, forms::Color color) {
    Record(ToRect(area), color);
}

void ImageCanvas::DrawText(std::string_view text, const forms::PixelRect& area, const forms::Font& font,
                           forms::Color color) {
    Record(ToRect(area), color, Text{std::string(text), font});
}

void ImageCanvas::DrawLine(forms::PixelPoint from, forms::PixelPoint to, forms::Color color) {
    const int width = std::abs(to.x - from.x);
    const int height = std::abs(to.y - from.y);
    if (width == 0 && height == 0) return;
    // A line to the left or up begins beside its end, which is left out.
    const QPoint corner(std::min(from.x, to.x + 1), std::min(from.y, to.y + 1));
    Record({corner, QSize(std::max(width, 1), std::max(height, 1))}, color);
}

void ImageCanvas::SetClip(const forms::PixelRect& area) {
    clip_ = ToRect(area);
}

void ImageCanvas::Refresh() {
    const bool isShown = !FitImage() && drawing_ == shown_;
    shown_.swap(drawing_);
    drawing_.clear();
    if (isShown) return;
    PaintImage();
    // Painting within painting is not possible; the widget paints right after.
    if (widget_.window()->testAttribute(Qt::WA_WState_InPaintEvent)) {
        widget_.update();
    } else {
        widget_.repaint();
    }
}

void ImageCanvas::Record(const QRect& area, forms::Color color, std::optional<Text> text) {
    if (clip_ && clip_->isEmpty()) return;
    drawing_.push_back({area, color, std::move(text), clip_});
}

bool ImageCanvas::FitImage() {
    const double scale = widget_.devicePixelRatioF();
    const QSize size = (QSizeF(ToRect(ClientRect()).size()) * scale).toSize();
    if (image_.size() == size && image_.devicePixelRatio() == scale) return false;
    image_ = QImage(size, QImage::Format_RGB32);
    image_.setDevicePixelRatio(scale);
    image_.fill(widget_.palette().color(QPalette::Window));
    widget_.setAttribute(Qt::WA_OpaquePaintEvent);
    return true;
}

void ImageCanvas::PaintImage() {
    if (image_.isNull()) return;
    const QRect all = ToRect(ClientRect());
    QPainter painter(&image_);
    for (const Command& command : shown_) {
        painter.setClipRect(command.clip.value_or(all));
        if (!command.text) {
            painter.fillRect(command.area, ToQColor(command.color));
            continue;
        }
        painter.setFont(ToFont(command.text->font));
        painter.setPen(ToQColor(command.color));
        painter.drawText(command.area, Qt::AlignCenter | Qt::TextSingleLine,
                         ToText(command.text->text, page_));
    }
}

}  // namespace halvenmoor::qt
