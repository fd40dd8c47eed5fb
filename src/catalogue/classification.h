#pragma once

#include "base/text/codepage.h"
#include "core/patterns.h"
#include "forms/list_box.h"

namespace halvenmoor {

/// Moves each entry of the source whose file name matches a pattern to the target. True if an entry moved. A
/// malformed pattern ends the search silently; what matched before it still moves. After any other failure
/// nothing moves, silently too.
bool ClassifyFilesOfType(forms::ListBox& source, forms::ListBox& target, const PatternList& patterns,
                         const text::CodePage& codePage);

}  // namespace halvenmoor
