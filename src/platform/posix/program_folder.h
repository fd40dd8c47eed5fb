#pragma once

#include <string>

namespace halvenmoor::posix {

/// The folder of the running program, without a separator at its end, whatever bytes its name holds. Empty
/// when the system does not tell.
std::string ProgramFolder();

}  // namespace halvenmoor::posix
