#pragma once

#include "platform/platform.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
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

/// Whether the last characters of a name are the extension (".ov2", ASCII), ignoring case.
bool HasExtension(std::string_view name, std::string_view extension);

/// The names of all files of the source folder, in their order; none when source or target folder is missing.
/// Throws Failure when a folder cannot be read.
std::vector<std::string> SourceFiles(const ImportTask& task);

/// A new camera file with its two header lines. The layout shows in the comment, for people only. Throws
/// Failure.
std::unique_ptr<platform::TextWriter> CreateCameraFile(platform::FileSystemObject& files,
                                                       std::string_view path, int sourceStructure);

}  // namespace halvenmoor
