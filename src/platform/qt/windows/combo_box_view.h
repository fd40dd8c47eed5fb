#pragma once

#include "forms/combo_box.h"
#include "platform/qt/windows/control_view.h"

#include <QComboBox>
#include <cstdint>

namespace halvenmoor::qt {

/// A choice with a text field that neither completes nor adds what is typed.
class ComboBoxView : public ViewOf<forms::ComboBox, QComboBox> {
public:
    ComboBoxView(forms::ComboBox& box, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;

    std::uint64_t shownItems_ = 0;
};

}  // namespace halvenmoor::qt
