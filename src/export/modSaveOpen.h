#pragma once

#include "core/modMain.h"

#include <string>
#include <string_view>

namespace halvenmoor {

/// The name that target files have, without extension.
inline constexpr std::string_view kTargetBaseName = "SpeedCamText";

/// Asks the user for a new target file, or for one to append to; both start in the folder of target files.
/// False, with the file name untouched, when the user cancels or the dialog fails.
bool ShowSaveAsDialogue(const modMain& core, std::string& fileName);
bool ShowAppendDialogue(const modMain& core, std::string& fileName);

}  // namespace halvenmoor
