#pragma once

#include "forms/color.h"
#include "forms/design.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace halvenmoor::forms {

class Form;

enum class ControlKind {
    Label,
    Frame,
    CommandButton,
    CheckBox,
    OptionButton,
    ListBox,
    ComboBox,
    PictureBox,
    TextBox
};

/// What every control of a window shares. Members named Set… change it from the program, members named
/// User… are called by its view when the user acts, and do nothing where the user cannot act: on a control
/// that is disabled or hidden, or on a window behind a modal one. They return false then.
class Control {
public:
    Control(ControlKind kind, Design design);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const Design& AtDesign() const { return design_; }
    const std::string& Name() const { return design_.name; }
    ControlKind Kind() const { return kind_; }
    Form& Owner() const { return design_.form; }

    /// UTF-8; shown as plain text.
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { Change(caption_, std::move(caption)); }
    bool Enabled() const { return enabled_; }
    /// Disabling the control that has the focus passes the focus on.
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    /// The text colour, a plain one; none: the toolkit's own.
    std::optional<Color> ForeColor() const { return foreColor_; }
    void SetForeColor(Color color) { Change(foreColor_, color); }
    /// What a screen reader calls the control: its caption, unless the program has given it other words.
    const std::string& AccessibleName() const { return accessibleName_.empty() ? caption_ : accessibleName_; }
    void SetAccessibleName(std::string name) { Change(accessibleName_, std::move(name)); }
    /// What the control says of itself beside its caption, to the mouse and to screen readers. UTF-8; shown
    /// as plain text.
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string toolTip) { Change(toolTip_, std::move(toolTip)); }

    bool CanTakeFocus() const;
    bool HasFocus() const;
    /// Gives the control the focus, if it can take it.
    void SetFocus();

    std::function<void()> OnClick;
    std::function<void()> OnGotFocus;
    std::function<void()> OnLostFocus;

    bool UserFocused();

protected:
    /// Marks the control: its view is brought up to date at the end of the running event.
    void Changed();
    /// Gives a property its value. False, and nothing is marked, when it has that value already.
    template <class Property, class Value>
    bool Change(Property& property, Value value) {
        if (property == value) return false;
        property = std::move(value);
        Changed();
        return true;
    }

private:
    const ControlKind kind_;
    const Design design_;
    std::string caption_;
    bool enabled_;
    bool visible_;
    std::optional<Color> foreColor_;
    std::string accessibleName_;
    std::string toolTip_;
};

}  // namespace halvenmoor::forms
