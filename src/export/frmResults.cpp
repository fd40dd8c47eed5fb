#include "export/frmResults.h"

#include "base/text/numbers.h"
#include "ui/group_text_color.h"
#include "ui/language/cNamesClass.h"

namespace halvenmoor {

namespace {

constexpr forms::Point kOffsetInMainForm{150, 665};

}  // namespace

frmResults::frmResults(const modExport& exports)
    : frmResultsLayout(exports.Core().Desktop()), exports_(exports), core_(exports.Core()) {
    CheckShowResults.OnClick = [this] {
        core_.WriteSetting("ShowResults", CheckShowResults.Value() ? "1" : "0");
    };
    ButtonCloseResults.OnClick = [this] { Unload(); };
    AddShortcut({"Ctrl+C", nullptr, [this] { core_.Desktop().Copy(TableText()); }});
}

void frmResults::Load() {
    MoveTo(core_.MainForm->Position() + kOffsetInMainForm);
    LoadShowResultsOption();
    SetResultsCaptions();
    ShowCounter(LabelFilesResult, exports_.FilesProcessed, LabelTitleProcessed);
    ShowCounter(LabelExportedResult, exports_.CamerasExported, LabelTitleExported);
    ShowCounter(LabelSkippedResult, exports_.CamerasSkipped, LabelTitleSkipped);
}

void frmResults::LoadShowResultsOption() {
    CheckShowResults.SetValue(core_.ReadSetting("ShowResults", "1") == "1");
}

void frmResults::SetResultsCaptions() {
    const cNamesClass& names = *core_.Names;
    const bool appended = core_.ExportMode == kAppendToFile;
    SetCaption(appended ? names.TitleAppendSpeedCameras() : names.TitleExportSpeedCameras());
    FrameMain.SetCaption(appended ? names.FrameMainAppended() : names.FrameMainExported());
    LabelTitleProcessed.SetCaption(names.LabelFilesProcessed());
    LabelTitleExported.SetCaption(appended ? names.LabelAppendedCameras() : names.LabelExportedCameras());
    LabelTitleSkipped.SetCaption(names.LabelSkippedCameras());
    for (int type = kFirstType; type <= kLastType; ++type) {
        FrameType[type].SetCaption(names.LabelSpeedCameraType() + " " + std::to_string(type));
        LabelType[type].SetCaption(names.LabelTypeDescription(type));
    }
    FrameAllTypes.SetCaption(names.FrameAllTypes());
    LabelTotals.SetCaption(names.LabelTotalFilesAndCameras());
    ButtonCloseResults.SetCaption(names.ButtonCloseResults());
    CheckShowResults.SetCaption(names.CheckShowResults());
}

/// Shows a counter of each type and their sum.
void frmResults::ShowCounter(forms::ControlArray<forms::Label, 0, 5>& labels,
                             const TypeTable<std::int32_t>& counter, const forms::Label& heading) {
    std::int32_t total = 0;
    for (int type = kFirstType; type <= kLastType; ++type) {
        const std::int32_t count = counter[static_cast<std::size_t>(type)];
        ShowNumber(labels[type], count, FrameType[type], heading);
        total = text::CheckedAdd(total, count);
    }
    ShowNumber(labels[0], total, FrameAllTypes, heading);
}

/// A screen reader says the number with its row and column.
void frmResults::ShowNumber(forms::Label& label, std::int32_t number, const forms::Frame& row,
                            const forms::Label& heading) {
    label.SetCaption(std::to_string(number));
    label.SetAccessibleName(row.Caption() + ", " + heading.Caption() + ": " + label.Caption());
}

/// The table as it shows, for spreadsheets: a tab between two columns.
std::string frmResults::TableText() const {
    const auto row = [](const auto&... controls) {
        std::string line;
        ((line += '\t' + controls.Caption()), ...);
        return line;
    };
    std::string table = '\t' + row(LabelTitleProcessed, LabelTitleExported, LabelTitleSkipped);
    for (int type = kFirstType; type <= kLastType; ++type) {
        table +=
            '\n' + FrameType[type].Caption() +
            row(LabelType[type], LabelFilesResult[type], LabelExportedResult[type], LabelSkippedResult[type]);
    }
    return table + '\n' + FrameAllTypes.Caption() +
           row(LabelTotals, LabelFilesResult[0], LabelExportedResult[0], LabelSkippedResult[0]);
}

void frmResults::Paint() {
    const forms::Color color = HeadingColor(core_.Services().theme);
    for (forms::Label* heading : {&LabelTitleProcessed, &LabelTitleExported, &LabelTitleSkipped}) {
        heading->SetForeColor(color);
    }
}

}  // namespace halvenmoor
