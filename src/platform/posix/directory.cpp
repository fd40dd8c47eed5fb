#include "platform/posix/directory.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>

namespace halvenmoor::posix {

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

bool Directory::IsFolder(const dirent& entry) const {
    if (entry.d_type == DT_DIR) return true;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return false;
    struct stat info {};
    return ::fstatat(::dirfd(stream_.get()), entry.d_name, &info, 0) == 0 && S_ISDIR(info.st_mode);
}

}  // namespace halvenmoor::posix
