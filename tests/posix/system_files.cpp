#include "tests/support/system_files.h"

namespace halvenmoor {

namespace fs = std::filesystem;

std::string Hide(const std::string& path) {
    const fs::path hidden = fs::path(path).parent_path() / ('.' + fs::path(path).filename().native());
    fs::rename(path, hidden);
    return hidden.native();
}

void MakeReadOnly(const std::string& path) {
    fs::permissions(path, fs::perms::owner_read);
}

}  // namespace halvenmoor
