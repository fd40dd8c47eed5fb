#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"

#include <QLineEdit>

namespace halvenmoor::qt {

class TextBoxView : public ViewOf<forms::TextBox, QLineEdit> {
public:
    TextBoxView(forms::TextBox& box, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
