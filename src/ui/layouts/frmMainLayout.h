#pragma once

#include "forms/combo_box.h"
#include "forms/control_array.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/list_box.h"

namespace halvenmoor {

/// The controls of the main window. The type rows repeat every kRowPitch; the buttons in the two frames lie
/// on the window, not in the frames.
class frmMainLayout : public forms::Form {
public:
    static constexpr forms::Twips kRowPitch = 1560;

    explicit frmMainLayout(forms::Desktop& desktop)
        : Form(desktop, {.name = "frmMain", .title = "Halvenmoor", .width = 11910, .height = 8520}) {}

    static constexpr forms::Bounds InRow(int type, forms::Bounds place) {
        return {place.left, place.top + kRowPitch * (type - 1), place.width, place.height};
    }

    forms::Frame FrameFileOptions{
        *this,
        {.name = "FrameFileOptions", .bounds = {9240, 960, 2535, 3315}, .tab = 45, .text = "File Options"}};
    forms::Frame FrameExportCameras{*this,
                                    {.name = "FrameExportCameras",
                                     .bounds = {9240, 4440, 2535, 3495},
                                     .tab = 46,
                                     .text = "Export Cameras"}};
    forms::ControlArray<forms::Label, 1, 5> LabelTypeList{
        *this, [](int i) {
            static constexpr const char* kTexts[] = {"Fixed", "Red Speed", "Red Light", "Section", "Mobile"};
            return forms::Design{.name = "LabelTypeList",
                                 .bounds = InRow(i, {150, 240, 4815, 255}),
                                 .tab = 38 + i,
                                 .text = "Speed Camera Type \"" + std::to_string(i) + "\"  (" +
                                         kTexts[i - 1] + (i == 3 ? " Camera)" : " Speed Camera)")};
        }};
    forms::ControlArray<forms::PictureBox, 1, 5> Picture{*this, [](int i) {
                                                             return forms::Design{
                                                                 .name = "Picture",
                                                                 .bounds = InRow(i, {150, 480, 1230, 1230}),
                                                                 .tab = i == 1 ? 28 : 33 + i,
                                                                 .bordered = true,
                                                                 .picture = "type" + std::to_string(i)};
                                                         }};
    forms::ControlArray<forms::ListBox, 1, 5> TypeList{
        *this, [](int i) {
            return forms::Design{
                .name = "TypeList", .bounds = InRow(i, {1440, 480, 3375, 1230}), .tab = 29 + i};
        }};
    forms::ControlArray<forms::CheckBox, 1, 5> CheckAuto{*this, [](int i) {
                                                             return forms::Design{
                                                                 .name = "CheckAuto",
                                                                 .bounds = InRow(i, {4920, 540, 795, 255}),
                                                                 .tab = 9 + 3 * i,
                                                                 .text = "Auto",
                                                                 .on = true};
                                                         }};
    forms::ControlArray<forms::CommandButton, 1, 5> ButtonAdd{
        *this, [](int i) {
            return forms::Design{.name = "ButtonAdd",
                                 .bounds = InRow(i, {4860, 840, 855, 375}),
                                 .tab = 10 + 3 * i,
                                 .glyph = forms::Glyph::TriangleLeft,
                                 .altDigit = static_cast<char>('0' + i)};
        }};
    forms::ControlArray<forms::CommandButton, 1, 5> ButtonRemove{
        *this, [](int i) {
            return forms::Design{.name = "ButtonRemove",
                                 .bounds = InRow(i, {4860, 1305, 855, 375}),
                                 .tab = 11 + 3 * i,
                                 .glyph = forms::Glyph::TriangleRight,
                                 .altDigit = i == 1 ? '0' : '\0'};
        }};
    forms::Label LabelMainList{*this,
                               {.name = "LabelMainList",
                                .bounds = {5760, 240, 3375, 255},
                                .tab = 44,
                                .text = "Speed Camera Files  (Unclassified)"}};
    forms::ListBox MainList{*this, {.name = "MainList", .bounds = {5760, 480, 3375, 7470}, .tab = 29}};
    forms::Label LabelSelectLanguage{*this,
                                     {.name = "LabelSelectLanguage",
                                      .bounds = {9240, 240, 2535, 255},
                                      .tab = 47,
                                      .text = "Select Language"}};
    forms::ComboBox LanguageList{*this,
                                 {.name = "LanguageList",
                                  .bounds = {9240, 480, 2535, 315},
                                  .tab = 27,
                                  .text = "Language",
                                  .label = &LabelSelectLanguage}};
    forms::CommandButton ButtonClassifyFiles{*this,
                                             {.name = "ButtonClassifyFiles",
                                              .bounds = {9360, 1320, 2295, 375},
                                              .tab = 0,
                                              .text = "Classify Files",
                                              .enabled = false}};
    forms::CommandButton ButtonReloadFiles{
        *this,
        {.name = "ButtonReloadFiles", .bounds = {9360, 1920, 2295, 375}, .tab = 1, .text = "Reload Files"}};
    forms::CommandButton ButtonRenameFile{*this,
                                          {.name = "ButtonRenameFile",
                                           .bounds = {9360, 2520, 2295, 375},
                                           .tab = 2,
                                           .text = "Rename File",
                                           .enabled = false}};
    forms::CommandButton ButtonImportFiles{
        *this,
        {.name = "ButtonImportFiles", .bounds = {9360, 3120, 2295, 375}, .tab = 3, .text = "Import Files"}};
    forms::CheckBox CheckDemoMode{*this,
                                  {.name = "CheckDemoMode",
                                   .bounds = {9360, 3660, 2295, 390},
                                   .tab = 4,
                                   .text = "Demonstration mode",
                                   .on = true}};
    forms::CommandButton ButtonExportCameras{*this,
                                             {.name = "ButtonExportCameras",
                                              .bounds = {9360, 4800, 2295, 375},
                                              .tab = 5,
                                              .text = "Export",
                                              .enabled = false}};
    forms::ControlArray<forms::OptionButton, 1, 3> OptionExportMode{
        *this, [](int i) {
            static constexpr const char* kTexts[] = {"Replace File", "Save File As...", "Append To File..."};
            return forms::Design{.name = "OptionExportMode",
                                 .bounds = {9360, 5340 + 480 * (i - 1), 2295, 390},
                                 .tab = 5 + i,
                                 .text = kTexts[i - 1],
                                 .on = i == 1};
        }};
    forms::CheckBox CheckSaveResults{*this,
                                     {.name = "CheckSaveResults",
                                      .bounds = {9360, 6780, 2295, 390},
                                      .tab = 9,
                                      .text = "Save results to file ",
                                      .on = true}};
    forms::CommandButton ButtonShowResults{*this,
                                           {.name = "ButtonShowResults",
                                            .bounds = {9360, 7320, 2295, 375},
                                            .tab = 10,
                                            .text = "Show Results",
                                            .enabled = false}};
    forms::CommandButton ButtonExitApplication{
        *this,
        {.name = "ButtonExitApplication", .bounds = {9660, 8040, 1695, 375}, .tab = 11, .text = "Exit"}};
};

}  // namespace halvenmoor
