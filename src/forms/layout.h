#pragma once

#include "forms/combo_box.h"
#include "forms/control_array.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/list_box.h"

#include <string>
#include <utility>

namespace halvenmoor::forms {

/// A window as a table of its controls, one in a row: Label Title{Row("Title", {120, 240, 3195, 255}, 1,
/// "Words")}.
class Layout : public Form {
protected:
    using Form::Form;

    using Label = forms::Label;
    using Frame = forms::Frame;
    using CommandButton = forms::CommandButton;
    using CheckBox = forms::CheckBox;
    using OptionButton = forms::OptionButton;
    using ListBox = forms::ListBox;
    using ComboBox = forms::ComboBox;
    using PictureBox = forms::PictureBox;
    using TextBox = forms::TextBox;
    using Glyph = forms::Glyph;
    template <class Kind, int First, int Last>
    using Array = ControlArray<Kind, First, Last>;

    Design Row(std::string name, Bounds bounds, int tab, std::string text = {}) {
        return {*this, std::move(name), bounds, tab, std::move(text)};
    }
};

}  // namespace halvenmoor::forms
