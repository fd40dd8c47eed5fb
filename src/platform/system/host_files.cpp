#include "platform/system/host_files.h"

#include "base/text/compare.h"
#include "platform/system/directory.h"
#include "platform/system/file.h"
#include "platform/system/streams.h"

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <stdio.h>  // renameat2
#include <string>
#include <utility>

namespace halvenmoor::system {

void DiskHostFiles::Search(std::string_view folder, std::string_view extension,
                           const std::function<void(std::string_view)>& found) {
    Directory directory(OpenFolder(finder_.Find(folder)));
    while (const dirent* entry = directory.Next()) {
        const std::string_view name(entry->d_name);
        const bool isHidden = name.starts_with('.');
        if (isHidden || !text::EndsWithIgnoringAsciiCase(name, extension)) continue;
        if (directory.KindOf(*entry) == Kind::File) found(name);
    }
}

std::optional<std::string> DiskHostFiles::FindFile(std::string_view path) {
    std::string found = finder_.Find(path);
    const Kind kind = KindOf(found);
    if (kind == Kind::Nothing || kind == Kind::Folder) return std::nullopt;
    return found;
}

std::unique_ptr<platform::ByteReader> DiskHostFiles::OpenBytes(std::string_view path) {
    FileDescriptor file = OpenForReading(finder_.Find(path));
    const std::uint64_t size = file.Size();
    return std::make_unique<DiskByteReader>(std::move(file), size);
}

void DiskHostFiles::Rename(std::string_view oldPath, std::string_view newPath) {
    const std::string from = finder_.Find(oldPath);
    const std::string to = finder_.FindForWriting(newPath);
    if (::renameat2(AT_FDCWD, SystemPath(from), AT_FDCWD, SystemPath(to), RENAME_NOREPLACE) == 0) return;
    const bool isSupported = errno != EINVAL && errno != ENOSYS;
    if (isSupported) throw SystemFailure(errno);
    if (EntryExists(to)) throw SystemFailure(EEXIST);
    if (::rename(SystemPath(from), SystemPath(to)) != 0) throw SystemFailure(errno);
}

}  // namespace halvenmoor::system
