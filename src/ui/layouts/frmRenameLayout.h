#pragma once

#include "forms/layout.h"

namespace halvenmoor {

/// The controls of the small window in which a file is renamed. PicBox stays hidden.
class frmRenameLayout : public forms::Layout {
public:
    explicit frmRenameLayout(forms::Desktop& desktop)
        : Layout(desktop, {.name = "frmRename",
                           .title = "Rename File",
                           .width = 3495,
                           .height = 855,
                           .closeBox = false,
                           .toolWindow = true,
                           .keyPreview = true}) {
        SetCancelButton(&ButtonCancel);
    }

    // clang-format off
    TextBox       TextFileName{Row("TextFileName", {  60, 120, 3375, 285}, 0, "File Name")};
    CommandButton ButtonRename{Row("ButtonRename", {1620, 480,  855, 315}, 1).Showing(Glyph::Tick, 14.25)};
    CommandButton ButtonCancel{Row("ButtonCancel", {2580, 480,  855, 315}, 2).Showing(Glyph::Cross, 8.25)};
    PictureBox    PicBox      {Row("PicBox",       { 120, 600,  135, 135}, 3).Hidden()};
    // clang-format on
};

}  // namespace halvenmoor
