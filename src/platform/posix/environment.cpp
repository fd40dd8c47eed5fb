#include "platform/posix/environment.h"

#include <cstdlib>

namespace halvenmoor::system {

std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string ConfigFolder() {
    const std::string folder = Variable("XDG_CONFIG_HOME");
    const bool isAbsolute = folder.starts_with('/');
    return isAbsolute ? folder : Variable("HOME") + "/.config";
}

}  // namespace halvenmoor::system
