#pragma once

#include "import/import_task.h"

#include <cstdint>

namespace halvenmoor {

/// Turns each OV2 file of the source folder into a camera file of the same name. A file that fails leaves no
/// camera file and does not hinder the others. Returns the number of files that failed.
std::int16_t ConvertOv2Files(const ImportTask& task);

}  // namespace halvenmoor
