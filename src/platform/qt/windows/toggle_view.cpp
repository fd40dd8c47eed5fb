#include "platform/qt/windows/toggle_view.h"

#include "platform/qt/windows/contrast.h"
#include "platform/qt/windows/conversions.h"

#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <utility>

namespace halvenmoor::qt {

template <class Base>
QRect WrappingToggle<Base>::CaptionRect() const {
    QStyleOptionButton option;
    this->initStyleOption(&option);
    return this->style()->subElementRect(
        kIsCheckBox ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents, &option, this);
}

template <class Base>
void WrappingToggle<Base>::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    this->initStyleOption(&option);
    const QString words = std::exchange(option.text, {});
    const bool hasFocus = option.state & QStyle::State_HasFocus;
    option.state &= ~QStyle::State_HasFocus;

    QStylePainter painter(this);
    option.palette = WithVisibleFrames(this->palette());
    painter.drawControl(kIsCheckBox ? QStyle::CE_CheckBox : QStyle::CE_RadioButton, option);
    const QRect contents = CaptionRect();
    const int flags =
        static_cast<int>(Qt::AlignVCenter | SideOf(words)) | Qt::TextWordWrap | Qt::TextShowMnemonic;
    option.palette = this->palette();
    painter.drawItemText(contents, flags, option.palette, this->isEnabled(), words, QPalette::WindowText);
    if (!hasFocus) return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = this->style()
                     ->itemTextRect(option.fontMetrics, contents, flags, true, words)
                     .adjusted(-2, -1, 2, 1)
                     .intersected(this->rect());
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

template <class ControlClass, class Base>
ToggleView<ControlClass, Base>::ToggleView(ControlClass& control, QWidget& parent, const text::CodePage& page)
    : ToggleView::ViewOf(control, parent, page) {
    QObject::connect(&this->Widget(), &Base::clicked, [this] {
        if (!this->Control().UserPress()) this->Update();
    });
}

template <class ControlClass, class Base>
void ToggleView<ControlClass, Base>::ShowState() {
    auto& button = this->Widget();
    button.setText(WithoutShortcut(this->ShownCaption(button.CaptionRect().size(), Qt::TextWordWrap)));
    const bool isExclusive = button.autoExclusive();
    button.setAutoExclusive(false);  // a group would not let its last button go off
    button.setChecked(this->Control().Value());
    button.setAutoExclusive(isExclusive);
}

template class ToggleView<forms::CheckBox, QCheckBox>;
template class ToggleView<forms::OptionButton, QRadioButton>;

}  // namespace halvenmoor::qt
