#include "export/frmExport.h"

#include "base/failure.h"
#include "base/text/numbers.h"
#include "export/export_run.h"
#include "export/results_file.h"
#include "ui/language/cNamesClass.h"

#include <exception>

namespace halvenmoor {

namespace {

constexpr forms::Point kOffsetInMainForm{1780, 3300};
constexpr std::int32_t kFullBar = 200;
constexpr double kWholeRunMilliseconds = 200;
constexpr double kHoldMilliseconds = 500;
constexpr double kSecondsPerDay = 86400;

/// Closes the window on the way out, whatever has happened.
class Closing {
public:
    explicit Closing(forms::Form& window) : window_(window) {}
    ~Closing() { window_.Unload(); }
    Closing(const Closing&) = delete;
    Closing& operator=(const Closing&) = delete;

private:
    forms::Form& window_;
};

}  // namespace

frmExport::frmExport(modExport& exports)
    : frmExportLayout(exports.Core().Desktop()),
      exports_(exports),
      core_(exports.Core()),
      progressBar_(core_.Services().theme) {
}

void frmExport::Load() {
    MoveTo(core_.MainForm->Position() + kOffsetInMainForm);
    SetExportCaptions();
    SetBusy(true);
    progressBar_.SetPicBox(&picProgress);
    progressBar_.SetMin(0);
    progressBar_.SetMax(kFullBar);
    progressBar_.SetShowText(true);
    progressBar_.SetFont(picProgress.GetFont());
    progressBar_.SetBackColor(forms::kButtonFace);
    progressBar_.SetBarColor(forms::kHighlight);
}

void frmExport::SetExportCaptions() {
    const cNamesClass& names = *core_.Names;
    const bool appending = core_.ExportMode == kAppendToFile;
    SetCaption(appending ? names.TitleAppendSpeedCameras() : names.TitleExportSpeedCameras());
    LabelProgress.SetCaption(
        (appending ? names.LabelAppendingSpeedCameras() : names.LabelExportingSpeedCameras()) + "...");
    picProgress.SetAccessibleName(LabelProgress.Caption());
}

void frmExport::Activate() {
    const Closing closing(*this);
    PaceTimer(true, kWholeRunMilliseconds / static_cast<double>(exports_.ExportFileTable.size()));
    if (RunExport(exportFileName_)) {
        exportResultsValid_ = true;
        if (core_.ReadSetting("SaveResults", "1") == "1") WriteResultsFile();
    }
    PaceTimer(true, kHoldMilliseconds);
    WaitForPace();
}

bool frmExport::RunExport(std::string_view targetFile) {
    exports_.FilesProcessed = {};
    exports_.CamerasExported = {};
    exports_.CamerasSkipped = {};
    exports_.ResultsFileFailed = false;
    std::string_view file = targetFile;
    try {
        ExportRun run(exports_, targetFile);
        const std::int16_t count =
            text::CheckedInt16(static_cast<long long>(exports_.ExportFileTable.size()));
        for (std::int16_t i = 0; i < count; ++i) {
            core_.Desktop().YieldIfDue();
            ShowFileProgress(static_cast<std::int16_t>(i + 1), count);
            const ExportFile& source = exports_.ExportFileTable[static_cast<std::size_t>(i)];
            file = source.path;
            run.Run(source);
        }
        file = targetFile;
        core_.Desktop().Wait([&run] { run.Sync(); });
        run.Finish();
        return true;
    } catch (const std::exception&) {
        TraceFailure("export", file);
        // The target keeps what was written; the counters describe the part of the run that was done.
        return false;
    }
}

void frmExport::ShowFileProgress(std::int16_t done, std::int16_t total) {
    WaitForPace();
    const std::int32_t product = text::CheckedInt32(static_cast<long long>(done) * progressBar_.Max());
    const double value = static_cast<double>(product) / static_cast<double>(total);
    progressBar_.SetValue(static_cast<std::int32_t>(text::RoundHalfEven(value)));
    PaceTimer(true, 0);
}

void frmExport::WaitForPace() {
    while (!PaceTimer(false, 0)) core_.Desktop().Yield(PaceLeft());
}

bool frmExport::PaceTimer(bool start, double milliseconds) {
    if (!start) return PaceLeft() < 0;
    paceStart_ = core_.Services().clock.TimeOfDay();
    if (milliseconds > 0) paceDuration_ = milliseconds / 1000;
    return false;
}

double frmExport::PaceLeft() const {
    const double now = core_.Services().clock.TimeOfDay();
    const bool midnightHasPassed = now < paceStart_;
    return paceStart_ + paceDuration_ - (midnightHasPassed ? now + kSecondsPerDay : now);
}

void frmExport::WriteResultsFile() const {
    const platform::Platform& services = core_.Services();
    try {
        const ResultsReport report(exports_);
        const auto file = services.fileSystem.CreateFileSystemObject()->CreateTextFile(core_.ResultsFile());
        report.Write([&](const std::string& line) { file->WriteLine(services.locale.ToFileText(line)); });
        core_.Desktop().Wait([&file] { file->Sync(); });
        file->Close();
    } catch (const std::exception&) {
        TraceFailure("write the results file");
        exports_.ResultsFileFailed = true;
        // The export stays valid without its results file.
    }
}

}  // namespace halvenmoor
