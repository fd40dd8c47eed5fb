#include "platform/qt/windows/control_view.h"

#include "platform/qt/windows/caption.h"
#include "platform/qt/windows/combo_box_view.h"
#include "platform/qt/windows/command_button_view.h"
#include "platform/qt/windows/conversions.h"
#include "platform/qt/windows/frame_view.h"
#include "platform/qt/windows/label_view.h"
#include "platform/qt/windows/list_box_view.h"
#include "platform/qt/windows/picture_box_view.h"
#include "platform/qt/windows/text_box_view.h"
#include "platform/qt/windows/toggle_view.h"

#include <QTextDocument>

namespace halvenmoor::qt {

namespace {

template <class View>
std::unique_ptr<ControlView> Make(forms::Control& control, QWidget& parent, const text::CodePage& page) {
    return std::make_unique<View>(static_cast<typename View::ControlType&>(control), parent, page);
}

/// Qt shows as markup what looks like it, so plain text is made markup that shows it.
QString ToToolTip(const QString& text) {
    return text.isEmpty() ? text : Qt::convertFromPlainText(text);
}

std::unique_ptr<ControlView> MakeByKind(forms::Control& control, QWidget& parent,
                                        const text::CodePage& page) {
    switch (control.Kind()) {
        // clang-format off
        case forms::ControlKind::Label:         return Make<LabelView>(control, parent, page);
        case forms::ControlKind::Frame:         return Make<FrameView>(control, parent, page);
        case forms::ControlKind::CommandButton: return Make<CommandButtonView>(control, parent, page);
        case forms::ControlKind::CheckBox:      return Make<CheckBoxView>(control, parent, page);
        case forms::ControlKind::OptionButton:  return Make<OptionButtonView>(control, parent, page);
        case forms::ControlKind::ListBox:       return Make<ListBoxView>(control, parent, page);
        case forms::ControlKind::ComboBox:      return Make<ComboBoxView>(control, parent, page);
        case forms::ControlKind::PictureBox:    return Make<PictureBoxView>(control, parent, page);
        case forms::ControlKind::TextBox:       return Make<TextBoxView>(control, parent, page);
            // clang-format on
    }
    return nullptr;
}

}  // namespace

void ControlView::Update() {
    widget_.setEnabled(control_.Enabled());
    widget_.setVisible(control_.Visible());
    if (const auto color = control_.ForeColor()) {
        QPalette colors;
        colors.setColor(widget_.foregroundRole(), ToQColor(*color));
        widget_.setPalette(colors);
    }
    widget_.setAccessibleName(ToText(control_.AccessibleName(), page_));
    const QString toolTip = QString::fromStdString(control_.ToolTip());
    widget_.setToolTip(ToToolTip(toolTip));
    widget_.setAccessibleDescription(toolTip);
    ShowState();
}

void ControlView::Place() {
    widget_.setGeometry(ToRect(control_.AtDesign().bounds, widget_.devicePixelRatioF()));
}

QString ControlView::ShownCaption(const QSize& size, Qt::TextFlag lines) {
    const QString caption = ToText(control_.Caption(), page_);
    const FittedCaption fitted = FitCaption(caption, ToFont({}), size, lines);
    widget_.setFont(fitted.font);
    if (fitted.text == caption) return fitted.text;
    const QString toolTip = QString::fromStdString(control_.ToolTip());
    widget_.setToolTip(ToToolTip(toolTip.isEmpty() ? caption : caption + u'\n' + toolTip));
    return fitted.text;
}

std::unique_ptr<ControlView> MakeControlView(forms::Control& control, QWidget& parent,
                                             const text::CodePage& page) {
    std::unique_ptr<ControlView> view = MakeByKind(control, parent, page);
    QWidget& widget = view->Widget();
    widget.setObjectName(QString::fromStdString(control.Name()));
    widget.setFont(ToFont({}));
    view->Place();
    view->Update();
    return view;
}

}  // namespace halvenmoor::qt
