#pragma once

#include "export/modExport.h"
#include "ui/layouts/frmResultsLayout.h"

namespace halvenmoor {

/// The window that shows the counters of the last run.
class frmResults : public frmResultsLayout {
public:
    explicit frmResults(const modExport& exports);

protected:
    void Load() override;
    void Paint() override;

private:
    void LoadShowResultsOption();
    void SetResultsCaptions();

    const modExport& exports_;
    const modMain& core_;
};

}  // namespace halvenmoor
