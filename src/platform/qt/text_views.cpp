#include "platform/qt/text_views.h"

#include "platform/qt/conversions.h"

namespace halvenmoor::qt {

LabelView::LabelView(forms::Label& label, QWidget& parent, const text::CodePage& page)
    : ViewOf(label, parent, page) {
    Widget().setTextFormat(Qt::PlainText);
    Widget().setWordWrap(true);
    Widget().setAlignment(Qt::AlignTop | (label.AtDesign().centred ? Qt::AlignHCenter : Qt::AlignLeft));
    if (label.AtDesign().bordered) Widget().setFrameStyle(QFrame::Box | QFrame::Plain);
}

void LabelView::ShowState() {
    Widget().setText(ToText(Control().Caption(), CodePage()));
}

void FrameView::ShowState() {
    Widget().setTitle(ToCaption(Control().Caption(), CodePage()));
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
}

}  // namespace halvenmoor::qt
