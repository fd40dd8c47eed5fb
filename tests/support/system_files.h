#pragma once

#include "platform/system/standard_path.h"

#include <string>

// What tests do with files by means of the system they run on.

namespace halvenmoor {

using system::FromStandard;
using system::ToStandard;

/// Gives a file what makes searches leave it out. Returns its path then.
std::string Hide(const std::string& path);

void MakeReadOnly(const std::string& path);

}  // namespace halvenmoor
