#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"

#include <QLabel>

namespace halvenmoor::qt {

/// Plain text that breaks into lines within its place.
class LabelView : public ViewOf<forms::Label, QLabel> {
public:
    LabelView(forms::Label& label, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

}  // namespace halvenmoor::qt
