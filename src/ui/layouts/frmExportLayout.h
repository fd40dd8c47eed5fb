#pragma once

#include "forms/controls.h"
#include "forms/form.h"

namespace halvenmoor {

/// The controls of the window that shows a running export. The user cannot close it.
class frmExportLayout : public forms::Form {
public:
    explicit frmExportLayout(forms::Desktop& desktop)
        : Form(desktop, {.name = "frmExport",
                         .title = "Export Speed Cameras",
                         .width = 6990,
                         .height = 1830,
                         .icon = false,
                         .closeBox = false}) {}

    forms::Label LabelProgress{*this,
                               {.name = "LabelProgress",
                                .bounds = {480, 360, 3615, 255},
                                .tab = 0,
                                .text = "Exporting Speed Cameras..."}};
    forms::PictureBox picProgress{
        *this, {.name = "picProgress", .bounds = {480, 720, 6025, 285}, .tab = 1, .bordered = true}};
};

}  // namespace halvenmoor
