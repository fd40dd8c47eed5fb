#pragma once

#include "forms/geometry.h"

#include <string>
#include <utility>

namespace halvenmoor::forms {

class Control;
class Form;

/// A sign on a button that carries no words.
enum class Glyph { None, TriangleLeft, TriangleRight, Tick, Cross };

/// A control as its window's table gives it: a row that begins with name, place, tab number and words, and
/// goes on with what is special about the control.
struct Design {
    Form& form;
    std::string name;
    Bounds bounds;
    /// Position in the tab order of the window; only the order of the numbers counts.
    int tab = 0;
    std::string text = {};
    /// The frame that the control lies in; none: directly on the window.
    const Control* frame = nullptr;
    /// The label that says what the control is for; none: it says so itself.
    const Control* label = nullptr;
    bool enabled = true;
    bool visible = true;
    /// Check boxes and option buttons: on at the start.
    bool on = false;
    bool centred = false;
    bool bordered = false;
    Glyph glyph = Glyph::None;
    /// The font size of the glyph, in points.
    double glyphSize = 0;
    /// Command buttons: the key that presses the button anywhere in the window, as in Shortcut; empty for
    /// none.
    std::string key = {};
    /// Picture boxes: the picture by its name, without a folder or an extension.
    std::string picture = {};

    Design& In(const Control& itsFrame) { return Set(frame, &itsFrame); }
    Design& LabelledBy(const Control& itsLabel) { return Set(label, &itsLabel); }
    Design& Disabled() { return Set(enabled, false); }
    Design& Hidden() { return Set(visible, false); }
    Design& On(bool isOn = true) { return Set(on, isOn); }
    Design& Centred() { return Set(centred, true); }
    Design& Bordered() { return Set(bordered, true); }
    Design& Showing(Glyph itsGlyph, double points) {
        glyphSize = points;
        return Set(glyph, itsGlyph);
    }
    Design& Showing(std::string itsPicture) { return Set(picture, std::move(itsPicture)); }
    Design& PressedBy(std::string itsKey) { return Set(key, std::move(itsKey)); }

private:
    template <class Value>
    Design& Set(Value& property, Value value) {
        property = std::move(value);
        return *this;
    }
};

}  // namespace halvenmoor::forms
