#pragma once

#include <string>
#include <vector>

namespace halvenmoor::system {

/// To be called before anything is opened. On POSIX, where standard input, output or error is closed, it is
/// opened to /dev/null, so that no other file gets its number and with it what is printed; to print there
/// fails as it did. SIGPIPE and SIGXFSZ are ignored, so that the write fails instead. On Windows the standard
/// streams pass bytes untouched, and the system asks the user for no disk.
void PrepareProcess();

/// What main gets behind the program's name; paths as the rest of the program has them.
std::vector<std::string> Arguments(int count, char** values);

}  // namespace halvenmoor::system
