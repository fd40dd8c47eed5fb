#pragma once

#include "core/modMain.h"
#include "export/modExport.h"
#include "forms/desktop.h"
#include "import/modImport.h"
#include "platform/platform.h"

#include <optional>

namespace halvenmoor {

class frmMain;

/// The whole program on a given platform: every module joined to the ones it needs.
class Program {
public:
    /// Platform and toolkit outlive the program.
    Program(const platform::Platform& platform, forms::Toolkit& toolkit);

    /// Shows the main window, unless another instance runs.
    void Start();

    forms::Desktop& Desktop() { return desktop_; }
    modMain& Core() { return core_; }
    // Once the program has started:
    frmMain& MainForm();
    modExport& Exports() { return exports_.value(); }

private:
    forms::Desktop desktop_;
    modMain core_;
    std::optional<modExport> exports_;
    std::optional<modImport> imports_;
};

}  // namespace halvenmoor
