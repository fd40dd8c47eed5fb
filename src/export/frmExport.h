#pragma once

#include "export/modExport.h"
#include "ui/cProgressBar.h"
#include "ui/layouts/frmExportLayout.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace halvenmoor {

/// The window of a running export. It runs the export when it is activated, stays half a second longer and
/// closes by itself.
class frmExport : public frmExportLayout {
public:
    explicit frmExport(modExport& exports);

    /// The full path of the target file; to be set before the window opens.
    void SetExportFileName(std::string path) { exportFileName_ = std::move(path); }
    /// Whether the run has reached its end.
    bool ExportResultsValid() const { return exportResultsValid_; }

protected:
    void Load() override;
    void Activate() override;

private:
    void SetExportCaptions();
    bool RunExport(std::string_view targetFile);
    void ShowFileProgress(std::int16_t done, std::int16_t total);
    /// Start: notes the time and, if above 0, the duration. Otherwise: whether the duration is over.
    bool PaceTimer(bool start, double milliseconds);
    /// Seconds until the duration is over; below 0 when it is.
    double PaceLeft() const;
    void WaitForPace();
    void WriteResultsFile() const;

    modExport& exports_;
    modMain& core_;
    std::string exportFileName_;
    bool exportResultsValid_ = false;
    cProgressBar progressBar_;
    double paceStart_ = 0;
    double paceDuration_ = 0;
};

}  // namespace halvenmoor
