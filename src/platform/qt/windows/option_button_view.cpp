#include "platform/qt/windows/option_button_view.h"

#include "platform/qt/windows/conversions.h"

namespace halvenmoor::qt {

OptionButtonView::OptionButtonView(forms::OptionButton& button, QWidget& parent, const text::CodePage& page)
    : ViewOf(button, parent, page) {
    QObject::connect(&Widget(), &QRadioButton::clicked, [this] {
        if (!Control().UserPress()) Update();
    });
}

void OptionButtonView::ShowState() {
    Widget().setText(WithoutShortcut(ShownCaption(Widget().CaptionRect().size(), Qt::TextWordWrap)));
    Widget().setAutoExclusive(false);  // a group would not let its last button go off
    Widget().setChecked(Control().Value());
    Widget().setAutoExclusive(true);
}

}  // namespace halvenmoor::qt
