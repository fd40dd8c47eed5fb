#include "platform/qt/windows/check_box_view.h"

#include "platform/qt/windows/conversions.h"

namespace halvenmoor::qt {

CheckBoxView::CheckBoxView(forms::CheckBox& box, QWidget& parent, const text::CodePage& page)
    : ViewOf(box, parent, page) {
    QObject::connect(&Widget(), &QCheckBox::clicked, [this] {
        if (!Control().UserPress()) Update();
    });
}

void CheckBoxView::ShowState() {
    Widget().setText(WithoutShortcut(ShownCaption(Widget().CaptionRect().size(), Qt::TextWordWrap)));
    Widget().setChecked(Control().Value());
}

}  // namespace halvenmoor::qt
