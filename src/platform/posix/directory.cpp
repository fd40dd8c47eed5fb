#include "platform/system/directory.h"

#include "platform/posix/system_calls.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace halvenmoor::system {

struct Directory::Walk {
    struct Closer {
        void operator()(DIR* opened) const noexcept { ::closedir(opened); }
    };

    std::unique_ptr<DIR, Closer> stream;
    const dirent* entry = nullptr;
};

Directory::Directory(const OpenFolder& folder) : walk_(std::make_unique<Walk>()) {
    // Opened once more, for a walk of its own.
    File own(::openat(DescriptorOf(folder.Handle()), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (own.IsOpen()) walk_->stream.reset(::fdopendir(DescriptorOf(own)));
    if (!walk_->stream) throw SystemFailure(errno);
    own.Release();
}

Directory::~Directory() = default;

bool Directory::Next() {
    while (true) {
        errno = 0;
        walk_->entry = ::readdir(walk_->stream.get());
        if (walk_->entry == nullptr && errno != 0) throw SystemFailure(errno);
        if (walk_->entry == nullptr) return false;
        if (Name() != "." && Name() != "..") return true;
    }
}

std::string_view Directory::Name() const {
    return walk_->entry->d_name;
}

bool Directory::IsHidden() const {
    return Name().starts_with('.');
}

Kind Directory::KindOfEntry() const {
    const dirent& entry = *walk_->entry;
    const bool isKnown = entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN;
    if (isKnown) return KindOf(static_cast<mode_t>(DTTOIF(entry.d_type)));
    struct stat info {};
    const bool isThere = ::fstatat(::dirfd(walk_->stream.get()), entry.d_name, &info, 0) == 0;
    return isThere ? KindOf(info.st_mode) : Kind::Nothing;
}

}  // namespace halvenmoor::system
