#pragma once

#include "core/text/codepage.h"
#include "forms/controls.h"

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
    /// Copies the control's state to the widget. Raises no event.
    void Update();

protected:
    ControlView(const forms::Control& control, QWidget& widget) : control_(control), widget_(widget) {}

private:
    /// The part of the state that only this kind of control has.
    virtual void ShowState() = 0;

    const forms::Control& control_;
    QWidget& widget_;
};

/// What the views of all kinds share: the control, its widget, and the code page, which outlives the view.
template <class ControlKind, class WidgetKind>
class ViewOf : public ControlView {
public:
    using ControlType = ControlKind;

    ViewOf(ControlKind& control, QWidget& parent, const text::CodePage& page)
        : ControlView(control, *new WidgetKind(&parent)), control_(control), page_(page) {}

protected:
    ControlKind& Control() const { return control_; }
    WidgetKind& Widget() const { return static_cast<WidgetKind&>(ControlView::Widget()); }
    const text::CodePage& CodePage() const { return page_; }

private:
    ControlKind& control_;
    const text::CodePage& page_;
};

/// Builds the view that fits the control's kind. The code page outlives the view.
std::unique_ptr<ControlView> MakeControlView(forms::Control& control, QWidget& parent,
                                             const text::CodePage& page);

}  // namespace halvenmoor::qt
