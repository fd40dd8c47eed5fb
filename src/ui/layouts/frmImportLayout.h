#pragma once

#include "forms/layout.h"

namespace halvenmoor {

/// The controls of the import dialog. The four pictures lie on one another; one of them shows at a time. The
/// two option buttons lie on the window, over FrameActions.
class frmImportLayout : public forms::Layout {
public:
    explicit frmImportLayout(forms::Desktop& desktop)
        : Layout(desktop, {.name = "frmImport", .title = "Import Files", .width = 7935, .height = 5490}) {
        SetCancelButton(&ButtonCancel);
    }

    // clang-format off
    Frame      FrameSelections  {Row("FrameSelections",       { 120,  240, 7695, 2175},  5, "Selections")};
    Label      LabelSourceName  {Words("LabelSourceName",     { 360,  600, 2415,  255}, 10, "Source Folder")};
    Label      LabelTargetName  {Words("LabelTargetName",     {4920,  600, 2415,  255}, 11, "Target Folder")};
    Label      LabelSourceFolder{Words("LabelSourceFolder",   { 600,  960, 1935,  255},  8, ".\\import\\xxx\\*.ov2").Bordered()};
    Label      LabelTargetFolder{Words("LabelTargetFolder",   {5160,  960, 1935,  255},  9, ".\\xxx\\*.asc").Bordered()};
    Label      LabelSourceFiles {Words("LabelSourceFiles",    { 360, 1440, 2415,  255}, 12, "0 files(s)")};
    Label      LabelTargetFiles {Words("LabelTargetFiles",    {4920, 1440, 2415,  255}, 13, "0 files(s)")};
    Label      LabelAddedRecords{Words("LabelAddedRecords",   {2520, 1860, 2655,  255}, 18, "")};
    PictureBox PictureNoDelete  {Picture("PictureNoDelete",   {3120,  480, 1455, 1335},  7, "nodelete")};
    PictureBox PictureDelete    {Picture("PictureDelete",     {3120,  480, 1455, 1335}, 14, "delete").Hidden()};
    PictureBox PictureFinished  {Picture("PictureFinished",   {3120,  480, 1455, 1335}, 15, "finished")};
    PictureBox PictureIncomplete{Picture("PictureIncomplete", {3120,  480, 1455, 1335}, 16, "incomplete")};

    Frame         FrameActions{Row("FrameActions", { 120, 2640, 7695, 1995},  6, "Actions")};
    CheckBox      CheckDelete {Row("CheckDelete",  { 240,  360, 7215,  416}, 17, kDeleteText).In(FrameActions).On()};
    Array<OptionButton, 1, 2> OptionSource{[this](int i) {
        return Row("OptionSource", {360, 3480 + 480 * (i - 1), 7215, 416}, 2 + i, kSourceTexts[i - 1]).On(i == 1); }};
    CommandButton ButtonStart {Row("ButtonStart",  {1080, 4860, 1695,  375},  0, "Start")};
    CommandButton ButtonCancel{Row("ButtonCancel", {3120, 4860, 1695,  375},  1, "Cancel")};
    CommandButton ButtonFinish{Row("ButtonFinish", {5160, 4860, 1695,  375},  2, "Finish").Disabled()};
    // clang-format on

private:
    static constexpr const char* kDeleteText = "Delete any existing files in target folder, then ...";
    static constexpr const char* kSourceTexts[] = {
        "Convert all OV2 source files to Ascii and save in target folder",
        "Convert all Text source files to Ascii and save in target folder"};

    forms::Design Words(const char* name, forms::Bounds bounds, int tab, const char* text) {
        return Row(name, bounds, tab, text).In(FrameSelections).Centred();
    }
    forms::Design Picture(const char* name, forms::Bounds bounds, int tab, const char* picture) {
        return Row(name, bounds, tab).In(FrameSelections).Showing(picture);
    }
};

}  // namespace halvenmoor
