#pragma once

#include "forms/geometry.h"

#include <string>

namespace halvenmoor::forms {

class Control;

/// A sign on a button that carries no words.
enum class Glyph { None, TriangleLeft, TriangleRight, Tick, Cross };

/// A control as its window's table gives it.
struct Design {
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
    /// Command buttons: the digit that presses the button together with Alt; 0 for none.
    char altDigit = 0;
    /// Picture boxes: the picture by its name, without a folder or an extension.
    std::string picture = {};
};

}  // namespace halvenmoor::forms
