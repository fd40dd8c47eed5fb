#pragma once

#include "import/import_task.h"
#include "platform/fakes/fakes.h"
#include "platform/fakes/memory_files.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::fuzz {

/// The platform in memory.
struct MemoryPlatform : fakes::Fakes {
    fakes::MemoryFiles memory;
    platform::Platform services = With(memory, memory);
};

/// An import from /source to /target that nobody watches.
struct MemoryImport : MemoryPlatform, ImportProgress {
    explicit MemoryImport(int sourceStructure)
        : task{services, *this, "/source/", "/target/", sourceStructure} {
        memory.AddFolder("/source");
        memory.AddFolder("/target");
    }

    void Yield() override {}
    bool StopRequested() const override { return false; }
    void FileDone() override {}
    void RecordsAdded(std::int32_t) override {}

    ImportTask task;
};

/// The lines of a text with their ends at CR LF or LF, as every text file is read.
inline std::vector<std::string> Lines(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string line(text.substr(0, end));
        if (end != std::string_view::npos && line.ends_with('\r')) line.pop_back();
        lines.push_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

}  // namespace halvenmoor::fuzz
