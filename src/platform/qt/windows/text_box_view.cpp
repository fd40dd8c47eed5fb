#include "platform/qt/windows/text_box_view.h"

#include "platform/qt/windows/conversions.h"

namespace halvenmoor::qt {

TextBoxView::TextBoxView(forms::TextBox& box, QWidget& parent, const text::CodePage& page)
    : ViewOf(box, parent, page) {
    QObject::connect(&Widget(), &QLineEdit::textEdited, [this](const QString& text) {
        if (!Control().UserTyped(ToUtf8(text))) Update();
    });
}

void TextBoxView::ShowState() {
    const QString text = ToText(Control().Text(), CodePage());
    if (text != Widget().text()) Widget().setText(text);  // setting moves the cursor
    if (Control().TakeSelectAll()) Widget().selectAll();
}

}  // namespace halvenmoor::qt
