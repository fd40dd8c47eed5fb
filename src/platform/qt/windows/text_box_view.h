#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"
#include "platform/qt/windows/conversions.h"

#include <QLineEdit>

namespace halvenmoor::qt {

class TextBoxView : public ViewOf<forms::TextBox, QLineEdit> {
public:
    TextBoxView(forms::TextBox& box, QWidget& parent, const text::CodePage& page)
        : ViewOf(box, parent, page) {
        QObject::connect(&Widget(), &QLineEdit::textEdited, [this](const QString& text) {
            if (!Control().UserTyped(text.toStdString())) Update();
        });
    }

private:
    void ShowState() override {
        const QString text = ToText(Control().Text(), CodePage());
        if (text != Widget().text()) Widget().setText(text);  // setting moves the cursor
        if (Control().TakeSelectAll()) Widget().selectAll();
    }
};

}  // namespace halvenmoor::qt
