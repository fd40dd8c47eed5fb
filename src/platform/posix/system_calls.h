#pragma once

#include "platform/system/file.h"

#include <string>
#include <sys/types.h>

namespace halvenmoor::system {

/// The path as system calls take it. One with a NUL would name another file and becomes empty, which every
/// call refuses.
inline const char* SystemPath(const std::string& path) {
    return path.find('\0') == std::string::npos ? path.c_str() : "";
}

inline int DescriptorOf(const File& file) {
    return static_cast<int>(file.Get());
}

Kind KindOf(mode_t mode);

}  // namespace halvenmoor::system
