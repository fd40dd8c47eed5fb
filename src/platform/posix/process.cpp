#include "platform/system/process.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace halvenmoor::system {

void PrepareProcess() {
    // A file that is opened gets the lowest number that is free.
    int lowest = ::open("/dev/null", O_RDONLY);
    while (lowest >= 0 && lowest <= STDERR_FILENO) lowest = ::open("/dev/null", O_RDONLY);
    if (lowest >= 0) ::close(lowest);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

std::vector<std::string> Arguments(int count, char** values) {
    return {values + 1, values + count};
}

}  // namespace halvenmoor::system
