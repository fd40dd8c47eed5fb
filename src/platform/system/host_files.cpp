#include "platform/system/host_files.h"

#include "base/text/compare.h"
#include "platform/system/directory.h"
#include "platform/system/file.h"
#include "platform/system/streams.h"

#include <cstdint>
#include <string>
#include <utility>

namespace halvenmoor::system {

void DiskHostFiles::Search(std::string_view folder, std::string_view extension,
                           const std::function<void(std::string_view)>& found) {
    Directory directory{OpenFolder(finder_.Find(folder))};
    while (directory.Next()) {
        const std::string_view name = directory.Name();
        if (directory.IsHidden() || !text::EndsWithIgnoringAsciiCase(name, extension)) continue;
        if (directory.KindOfEntry() == Kind::File) found(name);
    }
}

std::optional<std::string> DiskHostFiles::FindFile(std::string_view path) {
    std::string found = finder_.Find(path);
    const Kind kind = KindOf(found);
    if (kind == Kind::Nothing || kind == Kind::Folder) return std::nullopt;
    return found;
}

std::unique_ptr<platform::ByteReader> DiskHostFiles::OpenBytes(std::string_view path) {
    File file = OpenForReading(finder_.Find(path));
    const std::uint64_t size = file.Size();
    return std::make_unique<DiskByteReader>(std::move(file), size);
}

void DiskHostFiles::Rename(std::string_view oldPath, std::string_view newPath) {
    system::Rename(finder_.Find(oldPath), finder_.FindForWriting(newPath));
}

}  // namespace halvenmoor::system
