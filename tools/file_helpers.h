#pragma once

#include "base/failure.h"
#include "platform/files.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

using Strings = std::vector<std::string>;

/// The number of the failure that the call throws, 0 when it throws none.
template <class Call>
int FailureNumber(Call call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

inline Strings ReadLines(platform::TextReader& reader) {
    Strings lines;
    while (!reader.AtEndOfStream()) lines.emplace_back(reader.ReadLine());
    return lines;
}

inline Strings ReadLines(platform::FileSystem& files, const std::string& path) {
    return ReadLines(*files.CreateFileSystemObject()->OpenTextFile(path));
}

/// The names that a search finds, in the order of their bytes.
inline Strings Search(platform::HostFiles& files, const std::string& folder,
                      const std::string& extension = ".asc") {
    Strings names;
    files.Search(folder, extension, [&](std::string_view name) { names.emplace_back(name); });
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace halvenmoor
