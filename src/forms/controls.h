#pragma once

#include "forms/control.h"
#include "forms/font.h"

#include <string>
#include <utility>

namespace halvenmoor::forms {

class Canvas;

class Label : public Control {
public:
    explicit Label(Design design) : Control(ControlKind::Label, std::move(design)) {}
};

class Frame : public Control {
public:
    explicit Frame(Design design) : Control(ControlKind::Frame, std::move(design)) {}
};

class CommandButton : public Control {
public:
    explicit CommandButton(Design design);

    bool UserPress();
};

class CheckBox : public Control {
public:
    explicit CheckBox(Design design);

    bool Value() const { return value_; }
    /// Raises the click when the value changes.
    void SetValue(bool value);

    bool UserPress();

private:
    bool value_;
};

/// One of a group: the option buttons of a window that lie in the same frame, or directly on it.
class OptionButton : public Control {
public:
    explicit OptionButton(Design design);

    bool Value() const { return value_; }
    /// Turning one on turns the others of its group off. Raises the click when it turns this one on.
    void SetValue(bool value);

    bool UserPress();

private:
    void TurnOn();

    bool value_;
};

/// A picture or a drawing surface.
class PictureBox : public Control {
public:
    explicit PictureBox(Design design);

    const Font& GetFont() const { return font_; }
    bool Bordered() const { return bordered_; }
    void SetBordered(bool bordered) { Change(bordered_, bordered); }
    /// The persistent image; none while the window is not open.
    Canvas* GetCanvas();

private:
    forms::Font font_;
    bool bordered_;
};

class TextBox : public Control {
public:
    explicit TextBox(Design design) : Control(ControlKind::TextBox, std::move(design)) {}

    const std::string& Text() const { return Caption(); }
    void SetText(std::string text) { SetCaption(std::move(text)); }
    /// Selects the whole text, so that typing replaces it.
    void SelectAll();
    /// Whether the text has to be selected since the last call.
    bool TakeSelectAll() { return std::exchange(mustSelect_, false); }

    bool UserTyped(std::string text);

private:
    bool mustSelect_ = false;
};

}  // namespace halvenmoor::forms
