#include "platform/qt/windows/frame_view.h"

#include "platform/qt/windows/conversions.h"

#include <QRegion>
#include <QStyle>
#include <QStylePainter>

namespace halvenmoor::qt {

QRect TitledFrame::TitleRect() const {
    return rect().adjusted(kIndent + kGap, 0, -kIndent - kGap, 0);
}

void TitledFrame::paintEvent(QPaintEvent*) {
    const int flags =
        static_cast<int>(SideOf(title()) | Qt::AlignTop) | Qt::TextSingleLine | Qt::TextShowMnemonic;
    const QRect titleRect = TitleRect();
    const QRect words =
        style()->itemTextRect(fontMetrics(), titleRect, flags, isEnabled(), title()) & titleRect;

    QStylePainter painter(this);
    painter.drawItemText(words, flags, palette(), isEnabled(), title(), QPalette::WindowText);
    if (!title().isEmpty()) {
        painter.setClipRegion(QRegion(rect()) - words.adjusted(-kGap, 0, kGap, 0));
    }
    painter.setPen(BorderColor(palette()));
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect border = rect().adjusted(0, words.height() / 2, 0, 0);
    painter.drawRoundedRect(QRectF(border).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
}

void FrameView::ShowState() {
    Widget().setTitle(WithoutShortcut(ShownCaption(Widget().TitleRect().size(), Qt::TextSingleLine)));
}

}  // namespace halvenmoor::qt
