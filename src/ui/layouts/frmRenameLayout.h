#pragma once

#include "forms/controls.h"
#include "forms/form.h"

namespace halvenmoor {

/// The controls of the small window in which a file is renamed. PicBox stays hidden.
class frmRenameLayout : public forms::Form {
public:
    explicit frmRenameLayout(forms::Desktop& desktop)
        : Form(desktop, {.name = "frmRename",
                         .title = "Rename File",
                         .width = 3495,
                         .height = 855,
                         .icon = false,
                         .closeBox = false,
                         .toolWindow = true,
                         .keyPreview = true}) {
        SetCancelButton(&ButtonCancel);
    }

    forms::TextBox TextFileName{
        *this, {.name = "TextFileName", .bounds = {60, 120, 3375, 285}, .tab = 0, .text = "File Name"}};
    forms::CommandButton ButtonRename{
        *this,
        {.name = "ButtonRename", .bounds = {1620, 480, 855, 315}, .tab = 1, .glyph = forms::Glyph::Tick}};
    forms::CommandButton ButtonCancel{
        *this,
        {.name = "ButtonCancel", .bounds = {2580, 480, 855, 315}, .tab = 2, .glyph = forms::Glyph::Cross}};
    forms::PictureBox PicBox{*this,
                             {.name = "PicBox", .bounds = {120, 600, 135, 135}, .tab = 3, .visible = false}};
};

}  // namespace halvenmoor
