#pragma once

#include "forms/control_array.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace halvenmoor {

/// The controls of the results window: one row a camera type, and a row for all types with the index 0. The
/// rows lie in front of FrameMain, on the window.
class frmResultsLayout : public forms::Form {
public:
    explicit frmResultsLayout(forms::Desktop& desktop)
        : Form(desktop,
               {.name = "frmResults", .title = "Export Speed Cameras", .width = 8955, .height = 7260}) {
        SetCancelButton(&ButtonCloseResults);
    }

    forms::Frame FrameMain{*this,
                           {.name = "FrameMain",
                            .bounds = {60, 240, 8835, 6495},
                            .tab = 32,
                            .text = "Exported Speed Camera Results"}};
    forms::Label LabelTitleProcessed{*this,
                                     {.name = "LabelTitleProcessed",
                                      .bounds = {2940, 420, 1935, 416},
                                      .tab = 35,
                                      .text = "Files Processed",
                                      .frame = &FrameMain,
                                      .centred = true}};
    forms::Label LabelTitleExported{*this,
                                    {.name = "LabelTitleExported",
                                     .bounds = {4860, 420, 1935, 416},
                                     .tab = 34,
                                     .text = "Exported Cameras",
                                     .frame = &FrameMain,
                                     .centred = true}};
    forms::Label LabelTitleSkipped{*this,
                                   {.name = "LabelTitleSkipped",
                                    .bounds = {6780, 420, 1935, 416},
                                    .tab = 33,
                                    .text = "Skipped Cameras",
                                    .frame = &FrameMain,
                                    .centred = true}};
    forms::ControlArray<forms::Frame, 1, 5> FrameType{
        *this, [](int i) {
            return forms::Design{.name = "FrameType",
                                 .bounds = {180, 1080 + 840 * (i - 1), 8595, 615},
                                 .tab = i == 1 ? 0 : i,
                                 .text = "Type " + std::to_string(i)};
        }};
    forms::ControlArray<forms::Label, 1, 5> LabelType{
        *this, [this](int i) {
            static constexpr const char* kTexts[] = {"Fixed Speed Cameras", "Red Speed Cameras",
                                                     "Red Light Cameras", "Section Speed Cameras",
                                                     "Mobile Speed Cameras"};
            return forms::Design{.name = "LabelType",
                                 .bounds = {120, 240, 3195, 255},
                                 .tab = i == 1 ? 1 : 4 + i,
                                 .text = kTexts[i - 1],
                                 .frame = &FrameType[i]};
        }};
    forms::Frame FrameAllTypes{
        *this, {.name = "FrameAllTypes", .bounds = {180, 5280, 8595, 615}, .tab = 10, .text = "All Types"}};
    forms::Label LabelTotals{*this,
                             {.name = "LabelTotals",
                              .bounds = {120, 240, 3195, 255},
                              .tab = 11,
                              .text = "Total Files and Cameras",
                              .frame = &FrameAllTypes}};
    forms::ControlArray<forms::Label, 0, 5> LabelFilesResult{
        *this, [this](int i) { return Result("LabelFilesResult", i, 3360, i == 0 ? 17 : 11 + i); }};
    forms::ControlArray<forms::Label, 0, 5> LabelExportedResult{
        *this, [this](int i) { return Result("LabelExportedResult", i, 5280, 18 + i); }};
    forms::ControlArray<forms::Label, 0, 5> LabelSkippedResult{
        *this, [this](int i) { return Result("LabelSkippedResult", i, 7200, 24 + i); }};
    forms::CommandButton ButtonCloseResults{
        *this, {.name = "ButtonCloseResults", .bounds = {3630, 6120, 1695, 375}, .tab = 30, .text = "Close"}};
    forms::CheckBox CheckShowResults{*this,
                                     {.name = "CheckShowResults",
                                      .bounds = {180, 6840, 8595, 255},
                                      .tab = 31,
                                      .text = "Show results summary after exporting speed cameras",
                                      .on = true}};

private:
    forms::Design Result(const char* name, int i, forms::Twips left, int tab) {
        return {.name = name,
                .bounds = {left, 240, 975, 255},
                .tab = tab,
                .text = "0",
                .frame = i == 0 ? &FrameAllTypes : &FrameType[i],
                .centred = true};
    }
};

}  // namespace halvenmoor
