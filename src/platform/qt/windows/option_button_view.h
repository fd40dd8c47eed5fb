#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"
#include "platform/qt/windows/wrapping_toggle.h"

namespace halvenmoor::qt {

/// Buttons with the same parent are one group, as in the form; so Qt lets the arrow keys move in it.
class OptionButtonView : public ViewOf<forms::OptionButton, WrappingToggle<QRadioButton>> {
public:
    OptionButtonView(forms::OptionButton& button, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
