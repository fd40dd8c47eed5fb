#include "platform/qt/windows/text_views.h"

#include "platform/qt/windows/conversions.h"

#include <QRegion>
#include <QStyle>
#include <QStylePainter>

namespace halvenmoor::qt {

LabelView::LabelView(forms::Label& label, QWidget& parent, const text::CodePage& page)
    : ViewOf(label, parent, page) {
    Widget().setTextFormat(Qt::PlainText);
    Widget().setWordWrap(true);
    Widget().setIndent(0);
    if (label.AtDesign().bordered) Widget().setFrameStyle(QFrame::Box | QFrame::Plain);
}

void LabelView::ShowState() {
    const QString words = ShownCaption(Widget().contentsRect().size(), Qt::TextWordWrap);
    Widget().setAlignment(Qt::AlignTop | (Control().AtDesign().centred ? Qt::AlignHCenter : SideOf(words)));
    Widget().setText(words);
}

QRect TitledFrame::TitleRect() const {
    return rect().adjusted(kIndent + kGap, 0, -kIndent - kGap, 0);
}

void TitledFrame::paintEvent(QPaintEvent*) {
    constexpr float kBorderStrength = 0.25F;
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
    QColor color = palette().color(QPalette::WindowText);
    color.setAlphaF(kBorderStrength);
    painter.setPen(color);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect border = rect().adjusted(0, words.height() / 2, 0, 0);
    painter.drawRoundedRect(QRectF(border).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
}

void FrameView::ShowState() {
    Widget().setTitle(WithoutShortcut(ShownCaption(Widget().TitleRect().size(), Qt::TextSingleLine)));
}

TextBoxView::TextBoxView(forms::TextBox& box, QWidget& parent, const text::CodePage& page)
    : ViewOf(box, parent, page) {
    QObject::connect(&Widget(), &QLineEdit::textEdited, [this](const QString& text) {
        Control().UserTyped(ToUtf8(text));
        Update();
    });
}

void TextBoxView::ShowState() {
    const QString text = ToText(Control().Text(), CodePage());
    if (text != Widget().text()) Widget().setText(text);  // setting moves the cursor
    if (Control().TakeSelectAll()) Widget().selectAll();
}

}  // namespace halvenmoor::qt
