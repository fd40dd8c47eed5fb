#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"
#include "platform/qt/windows/conversions.h"

#include <QLabel>

namespace halvenmoor::qt {

/// Plain text that breaks into lines within its place.
class LabelView : public ViewOf<forms::Label, QLabel> {
public:
    LabelView(forms::Label& label, QWidget& parent, const text::CodePage& page)
        : ViewOf(label, parent, page) {
        Widget().setTextFormat(Qt::PlainText);
        Widget().setWordWrap(true);
        Widget().setIndent(0);
        if (label.AtDesign().bordered) Widget().setFrameStyle(QFrame::Box | QFrame::Plain);
    }

private:
    void ShowState() override {
        const QString words = ShownCaption(Widget().contentsRect().size(), Qt::TextWordWrap);
        Widget().setAlignment(Qt::AlignTop |
                              (Control().AtDesign().centred ? Qt::AlignHCenter : SideOf(words)));
        Widget().setText(words);
    }
};

}  // namespace halvenmoor::qt
