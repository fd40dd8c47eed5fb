#include "platform/qt/windows/label_view.h"

#include "platform/qt/windows/conversions.h"

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

}  // namespace halvenmoor::qt
