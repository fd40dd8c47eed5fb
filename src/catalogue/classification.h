#pragma once

#include "core/camera_types.h"
#include "core/patterns.h"

#include <cstdint>

namespace halvenmoor {

class frmMain;

/// Moves each unclassified entry whose file name matches a pattern of a type into that type's list; the
/// lowest type wins. True if an entry moved.
bool ClassifyFiles(frmMain& window);

/// The same for one type, if its CheckAuto is on. A failure, such as a malformed pattern, ends the type
/// without a word; what has moved stays moved.
bool ClassifyFilesOfType(frmMain& window, const PatternList& patterns, std::int16_t typeNumber);

}  // namespace halvenmoor
