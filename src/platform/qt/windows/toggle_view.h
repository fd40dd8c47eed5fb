#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/control_view.h"

#include <QCheckBox>
#include <QRadioButton>
#include <type_traits>

namespace halvenmoor::qt {

/// A check box or radio button that breaks its words into lines and takes clicks anywhere in its place.
template <class Base>
class WrappingToggle : public Base {
public:
    explicit WrappingToggle(QWidget* parent) : Base(parent) {}

    /// Where the words may stand.
    QRect CaptionRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return this->rect().contains(position); }

private:
    static constexpr bool kIsCheckBox = std::is_same_v<Base, QCheckBox>;
};

/// Option buttons with the same parent are one group, as in the form; so Qt lets the arrow keys move in it.
template <class ControlClass, class Base>
class ToggleView : public ViewOf<ControlClass, WrappingToggle<Base>> {
public:
    ToggleView(ControlClass& control, QWidget& parent, const text::CodePage& page);

private:
    void ShowState() override;
};

using CheckBoxView = ToggleView<forms::CheckBox, QCheckBox>;
using OptionButtonView = ToggleView<forms::OptionButton, QRadioButton>;

}  // namespace halvenmoor::qt
