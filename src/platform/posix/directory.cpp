#include "platform/system/directory.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>

namespace halvenmoor::system {

Directory::Directory(FileDescriptor folder) : stream_(::fdopendir(folder.Get())) {
    if (!stream_) throw SystemFailure(errno);
    folder.Release();
}

const dirent* Directory::Next() {
    while (true) {
        errno = 0;
        const dirent* entry = ::readdir(stream_.get());
        if (entry == nullptr && errno != 0) throw SystemFailure(errno);
        if (entry == nullptr) return nullptr;
        const std::string_view name(entry->d_name);
        if (name != "." && name != "..") return entry;
    }
}

Kind Directory::KindOf(const dirent& entry) const {
    const bool isKnown = entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN;
    if (isKnown) return system::KindOf(static_cast<mode_t>(DTTOIF(entry.d_type)));
    struct stat info {};
    const bool isThere = ::fstatat(::dirfd(stream_.get()), entry.d_name, &info, 0) == 0;
    return isThere ? system::KindOf(info.st_mode) : Kind::Nothing;
}

}  // namespace halvenmoor::system
