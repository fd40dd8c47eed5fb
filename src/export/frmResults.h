#pragma once

#include "export/modExport.h"
#include "ui/layouts/frmResultsLayout.h"

#include <string>

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
    void ShowCounter(forms::ControlArray<forms::Label, 0, 5>& labels, const TypeTable<std::int32_t>& counter,
                     const forms::Label& heading);
    void ShowNumber(forms::Label& label, std::int32_t number, const forms::Frame& row,
                    const forms::Label& heading);
    std::string TableText() const;

    const modExport& exports_;
    const modMain& core_;
};

}  // namespace halvenmoor
