#pragma once

#include "platform/system/file.h"

#include <windows.h>

namespace halvenmoor::system {

/// The failure of the call before.
Failure LastFailure();

inline HANDLE HandleOf(const File& file) {
    return reinterpret_cast<HANDLE>(file.Get());
}

/// With the handle that a call gave, INVALID_HANDLE_VALUE too.
inline File MakeFile(HANDLE handle) {
    return File(reinterpret_cast<File::Handle>(handle));
}

/// What others may do with a file while it is open here.
inline constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

}  // namespace halvenmoor::system
