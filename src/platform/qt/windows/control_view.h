#pragma once

#include "base/text/codepage.h"
#include "forms/control.h"

#include <QWidget>
#include <memory>

namespace halvenmoor::qt {

/// A control's widget with what joins the two: the control's state goes out by Update, the user's actions
/// come in through signals that only the user can cause. The widget belongs to its parent.
class ControlView {
public:
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    QWidget& Widget() const { return widget_; }
    /// Gives the widget its place at the scale of its screen.
    void Place();
    /// Copies the control's state to the widget. Raises no event.
    void Update();

protected:
    ControlView(const forms::Control& control, QWidget& widget, const text::CodePage& page)
        : control_(control), widget_(widget), page_(page) {}

    /// The control's caption as it fits the size, for one line or for several; the widget takes the font in
    /// which it does. What is cut off can be read in the tool tip.
    QString ShownCaption(const QSize& size, Qt::TextFlag lines);
    const text::CodePage& CodePage() const { return page_; }

private:
    /// The part of the state that only this kind of control has.
    virtual void ShowState() = 0;

    const forms::Control& control_;
    QWidget& widget_;
    const text::CodePage& page_;
};

/// What the views of all kinds share: control and widget by their kinds. The code page outlives the view.
template <class ControlClass, class WidgetClass>
class ViewOf : public ControlView {
public:
    using ControlType = ControlClass;

    ViewOf(ControlClass& control, QWidget& parent, const text::CodePage& page)
        : ControlView(control, *new WidgetClass(&parent), page), control_(control) {}

protected:
    ControlClass& Control() const { return control_; }
    WidgetClass& Widget() const { return static_cast<WidgetClass&>(ControlView::Widget()); }

private:
    ControlClass& control_;
};

/// Builds the view that fits the control's kind. The code page outlives the view.
std::unique_ptr<ControlView> MakeControlView(forms::Control& control, QWidget& parent,
                                             const text::CodePage& page);

}  // namespace halvenmoor::qt
