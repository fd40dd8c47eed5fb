#pragma once

#include "forms/layout.h"

namespace halvenmoor {

/// The controls of the results window: one row a camera type, and a row for all types with the index 0. The
/// rows lie in front of FrameMain, on the window.
class frmResultsLayout : public forms::Layout {
public:
    explicit frmResultsLayout(forms::Desktop& desktop)
        : Layout(desktop,
                 {.name = "frmResults", .title = "Export Speed Cameras", .width = 8955, .height = 7260}) {
        SetCancelButton(&ButtonCloseResults);
    }

    // clang-format off
    Frame FrameMain          {Row("FrameMain",               {  60, 240, 8835, 6495}, 32, "Exported Speed Camera Results")};
    Label LabelTitleProcessed{Heading("LabelTitleProcessed", {2940, 420, 1935,  416}, 35, "Files Processed")};
    Label LabelTitleExported {Heading("LabelTitleExported",  {4860, 420, 1935,  416}, 34, "Exported Cameras")};
    Label LabelTitleSkipped  {Heading("LabelTitleSkipped",   {6780, 420, 1935,  416}, 33, "Skipped Cameras")};

    Array<Frame, 1, 5> FrameType{[this](int i) {
        return Row("FrameType", {180, 1080 + 840 * (i - 1), 8595, 615}, i == 1 ? 0 : i, "Type " + std::to_string(i)); }};
    Array<Label, 1, 5> LabelType{[this](int i) {
        return Row("LabelType", {120, 240, 3195, 255}, i == 1 ? 1 : 4 + i, kTypeNames[i - 1]).In(FrameType[i]); }};
    Frame FrameAllTypes{Row("FrameAllTypes", {180, 5280, 8595, 615}, 10, "All Types")};
    Label LabelTotals  {Row("LabelTotals",   {120,  240, 3195, 255}, 11, "Total Files and Cameras").In(FrameAllTypes)};

    Array<Label, 0, 5> LabelFilesResult{[this](int i) {
        return Counter(i, "LabelFilesResult",    {3360, 240, 975, 255}, i == 0 ? 17 : 11 + i); }};
    Array<Label, 0, 5> LabelExportedResult{[this](int i) {
        return Counter(i, "LabelExportedResult", {5280, 240, 975, 255}, 18 + i); }};
    Array<Label, 0, 5> LabelSkippedResult{[this](int i) {
        return Counter(i, "LabelSkippedResult",  {7200, 240, 975, 255}, 24 + i); }};

    CommandButton ButtonCloseResults{Row("ButtonCloseResults", {3630, 6120, 1695, 375}, 30, "Close")};
    CheckBox      CheckShowResults  {Row("CheckShowResults",   { 180, 6840, 8595, 255}, 31, kShowText).On()};
    // clang-format on

private:
    static constexpr const char* kTypeNames[] = {"Fixed Speed Cameras", "Red Speed Cameras",
                                                 "Red Light Cameras", "Section Speed Cameras",
                                                 "Mobile Speed Cameras"};
    static constexpr const char* kShowText = "Show results summary after exporting speed cameras";

    forms::Design Heading(const char* name, forms::Bounds bounds, int tab, const char* text) {
        return Row(name, bounds, tab, text).In(FrameMain).Centred();
    }
    forms::Design Counter(int i, const char* name, forms::Bounds bounds, int tab) {
        return Row(name, bounds, tab, "0").In(i == 0 ? FrameAllTypes : FrameType[i]).Centred();
    }
};

}  // namespace halvenmoor
