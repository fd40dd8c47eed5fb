#pragma once

#include "platform/platform.h"

#include <cstdint>
#include <string>
#include <vector>

namespace halvenmoor {

/// What a running import needs of whoever started it.
class ImportProgress {
public:
    virtual ~ImportProgress() = default;

    /// Yields to the interface.
    virtual void Yield() = 0;
    /// Whether the import is to end. It changes only during a yield.
    virtual bool StopRequested() const = 0;
    /// A camera file has been dealt with. Yields to the interface.
    virtual void FileDone() = 0;
    /// This many records have been read so far.
    virtual void RecordsAdded(std::int32_t count) = 0;
};

/// One import: where from, where to, and how the new camera files are laid out.
struct ImportTask {
    const platform::Platform& services;
    ImportProgress& progress;
    // With a separator at the end.
    std::string sourceFolder;
    std::string targetFolder;
    /// As cSettingsClass::SourceStructure.
    int sourceStructure;
};

/// Whether the name is that of a hidden file. Those are neither imported nor counted.
bool IsHidden(std::string_view name);

/// The names of all files of the source folder but the hidden ones, in their order; none when source or
/// target folder is missing. Throws Failure when a folder cannot be read.
std::vector<std::string> SourceFiles(const ImportTask& task);

/// Begins a new camera file with its two header lines. The layout shows in the comment, for people only.
/// Throws Failure.
void WriteCameraFileHeader(platform::TextWriter& file, int sourceStructure);

}  // namespace halvenmoor
