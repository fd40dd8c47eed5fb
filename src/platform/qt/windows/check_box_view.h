#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"
#include "platform/qt/windows/wrapping_toggle.h"

namespace halvenmoor::qt {

class CheckBoxView : public ViewOf<forms::CheckBox, WrappingToggle<QCheckBox>> {
public:
    CheckBoxView(forms::CheckBox& box, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
