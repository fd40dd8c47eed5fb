#pragma once

#include "forms/layout.h"

namespace halvenmoor {

/// The controls of the window that shows a running export. The user cannot close it.
class frmExportLayout : public forms::Layout {
public:
    explicit frmExportLayout(forms::Desktop& desktop)
        : Layout(desktop, {.name = "frmExport",
                           .title = "Export Speed Cameras",
                           .width = 6990,
                           .height = 1830,
                           .closeBox = false}) {}

    // clang-format off
    Label      LabelProgress{Row("LabelProgress", {480, 360, 3615, 255}, 0, "Exporting Speed Cameras...")};
    PictureBox picProgress  {Row("picProgress",   {480, 720, 6025, 285}, 1).Bordered()};
    // clang-format on
};

}  // namespace halvenmoor
