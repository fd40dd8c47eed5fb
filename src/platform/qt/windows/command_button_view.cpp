#include "platform/qt/windows/command_button_view.h"

#include "platform/qt/windows/conversions.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionButton>

namespace halvenmoor::qt {

namespace {

/// The outline of a glyph within the square from -1, -1 to 1, 1. The cross comes as two strokes in a row.
QPolygonF GlyphPoints(forms::Glyph glyph) {
    switch (glyph) {
        case forms::Glyph::TriangleLeft:
            return QPolygonF({{0.6, -1}, {0.6, 1}, {-0.6, 0}});
        case forms::Glyph::TriangleRight:
            return QPolygonF({{-0.6, -1}, {-0.6, 1}, {0.6, 0}});
        case forms::Glyph::Tick:
            return QPolygonF({{-0.9, 0}, {-0.3, 0.7}, {0.9, -0.8}});
        case forms::Glyph::Cross:
            return QPolygonF({{-0.8, -0.8}, {0.8, 0.8}, {0, 0}, {-0.8, 0.8}, {0.8, -0.8}});
        case forms::Glyph::None:
            break;
    }
    return {};
}

bool IsFilled(forms::Glyph glyph) {
    return glyph == forms::Glyph::TriangleLeft || glyph == forms::Glyph::TriangleRight;
}

}  // namespace

QRect GlyphButton::CaptionRect() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    constexpr int kGap = 3;  // between the words and the border
    return style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).adjusted(kGap, 0, -kGap, 0);
}

void GlyphButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    if (glyph_ == forms::Glyph::None) return;
    constexpr double kShareOfSize = 5.5 / 19;  // from the middle of the glyph to its edge
    const double scale = glyphSize_ * kPixelsPerPoint * kShareOfSize;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.scale(scale, scale);
    const QColor color = palette().color(QPalette::ButtonText);
    if (IsFilled(glyph_)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(GlyphPoints(glyph_));
    } else {
        painter.setPen(QPen(color, 0.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(GlyphPoints(glyph_));
    }
}

CommandButtonView::CommandButtonView(forms::CommandButton& button, QWidget& parent,
                                     const text::CodePage& page)
    : ViewOf(button, parent, page) {
    Widget().SetGlyph(button.AtDesign().glyph, button.AtDesign().glyphSize);
    Widget().setAutoDefault(true);  // the Enter key presses the button that has the focus
    QObject::connect(&Widget(), &QPushButton::clicked, [this] { Control().UserPress(); });
}

void CommandButtonView::ShowState() {
    if (Control().AtDesign().glyph != forms::Glyph::None) return;
    Widget().setText(WithoutShortcut(ShownCaption(Widget().CaptionRect().size(), Qt::TextSingleLine)));
}

}  // namespace halvenmoor::qt
