#pragma once

namespace halvenmoor::system {

/// To be called before anything is opened. Where standard input, output or error is closed, it is opened to
/// /dev/null, so that no other file gets its number and with it what is printed; to print there fails as it
/// did. SIGPIPE and SIGXFSZ are ignored, so that the write fails instead.
void PrepareProcess();

}  // namespace halvenmoor::system
