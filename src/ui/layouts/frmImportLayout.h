#pragma once

#include "forms/control_array.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace halvenmoor {

/// The controls of the import dialog. The four pictures lie on one another; one of them shows at a time. The
/// two option buttons lie on the window, over FrameActions.
class frmImportLayout : public forms::Form {
public:
    explicit frmImportLayout(forms::Desktop& desktop)
        : Form(desktop, {.name = "frmImport", .title = "Import Files", .width = 7935, .height = 5490}) {
        SetCancelButton(&ButtonCancel);
    }

    forms::Frame FrameSelections{
        *this, {.name = "FrameSelections", .bounds = {120, 240, 7695, 2175}, .tab = 5, .text = "Selections"}};
    forms::Label LabelSourceName{*this,
                                 {.name = "LabelSourceName",
                                  .bounds = {360, 600, 2415, 255},
                                  .tab = 10,
                                  .text = "Source Folder",
                                  .frame = &FrameSelections,
                                  .centred = true}};
    forms::Label LabelTargetName{*this,
                                 {.name = "LabelTargetName",
                                  .bounds = {4920, 600, 2415, 255},
                                  .tab = 11,
                                  .text = "Target Folder",
                                  .frame = &FrameSelections,
                                  .centred = true}};
    forms::Label LabelSourceFolder{*this,
                                   {.name = "LabelSourceFolder",
                                    .bounds = {600, 960, 1935, 255},
                                    .tab = 8,
                                    .text = ".\\import\\xxx\\*.ov2",
                                    .frame = &FrameSelections,
                                    .centred = true,
                                    .bordered = true}};
    forms::Label LabelTargetFolder{*this,
                                   {.name = "LabelTargetFolder",
                                    .bounds = {5160, 960, 1935, 255},
                                    .tab = 9,
                                    .text = ".\\xxx\\*.asc",
                                    .frame = &FrameSelections,
                                    .centred = true,
                                    .bordered = true}};
    forms::Label LabelSourceFiles{*this,
                                  {.name = "LabelSourceFiles",
                                   .bounds = {360, 1440, 2415, 255},
                                   .tab = 12,
                                   .text = "0 files(s)",
                                   .frame = &FrameSelections,
                                   .centred = true}};
    forms::Label LabelTargetFiles{*this,
                                  {.name = "LabelTargetFiles",
                                   .bounds = {4920, 1440, 2415, 255},
                                   .tab = 13,
                                   .text = "0 files(s)",
                                   .frame = &FrameSelections,
                                   .centred = true}};
    forms::Label LabelAddedRecords{*this,
                                   {.name = "LabelAddedRecords",
                                    .bounds = {2520, 1860, 2655, 255},
                                    .tab = 18,
                                    .frame = &FrameSelections,
                                    .centred = true}};
    forms::PictureBox PictureNoDelete{*this, Status("PictureNoDelete", 7, "nodelete")};
    forms::PictureBox PictureDelete{*this, Status("PictureDelete", 14, "delete", false)};
    forms::PictureBox PictureFinished{*this, Status("PictureFinished", 15, "finished")};
    forms::PictureBox PictureIncomplete{*this, Status("PictureIncomplete", 16, "incomplete")};
    forms::Frame FrameActions{
        *this, {.name = "FrameActions", .bounds = {120, 2640, 7695, 1995}, .tab = 6, .text = "Actions"}};
    forms::CheckBox CheckDelete{*this,
                                {.name = "CheckDelete",
                                 .bounds = {240, 360, 7215, 416},
                                 .tab = 17,
                                 .text = "Delete any existing files in target folder, then ...",
                                 .frame = &FrameActions,
                                 .on = true}};
    forms::ControlArray<forms::OptionButton, 1, 2> OptionSource{
        *this, [](int i) {
            return forms::Design{.name = "OptionSource",
                                 .bounds = {360, 3480 + 480 * (i - 1), 7215, 416},
                                 .tab = 2 + i,
                                 .text = std::string("Convert all ") + (i == 1 ? "OV2" : "Text") +
                                         " source files to Ascii and save in target folder",
                                 .on = i == 1};
        }};
    forms::CommandButton ButtonStart{
        *this, {.name = "ButtonStart", .bounds = {1080, 4860, 1695, 375}, .tab = 0, .text = "Start"}};
    forms::CommandButton ButtonCancel{
        *this, {.name = "ButtonCancel", .bounds = {3120, 4860, 1695, 375}, .tab = 1, .text = "Cancel"}};
    forms::CommandButton ButtonFinish{*this,
                                      {.name = "ButtonFinish",
                                       .bounds = {5160, 4860, 1695, 375},
                                       .tab = 2,
                                       .text = "Finish",
                                       .enabled = false}};

private:
    forms::Design Status(const char* name, int tab, const char* picture, bool visible = true) {
        return {.name = name,
                .bounds = {3120, 480, 1455, 1335},
                .tab = tab,
                .frame = &FrameSelections,
                .visible = visible,
                .picture = picture};
    }
};

}  // namespace halvenmoor
