#pragma once

#include "forms/combo_box.h"
#include "platform/qt/windows/control_view.h"

#include <QComboBox>
#include <QWheelEvent>
#include <cstdint>

namespace halvenmoor::qt {

/// A combo box that chooses nothing when the mouse wheel turns over it. Its open list scrolls as usual.
class ComboBoxWidget : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

/// A choice with a text field that neither completes nor adds what is typed.
class ComboBoxView : public ViewOf<forms::ComboBox, ComboBoxWidget> {
public:
    ComboBoxView(forms::ComboBox& box, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;

    std::uint64_t shownItems_ = 0;
};

}  // namespace halvenmoor::qt
