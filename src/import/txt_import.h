#pragma once

#include "core/camera_types.h"
#include "import/import_task.h"
#include "import/txt_records.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace halvenmoor {

/// Turns the TXT files of the source folder, all taken together, into one camera file for each type and
/// speed. Its three phases are to be called in their order, each only if no stop is requested.
class TxtImport {
public:
    /// The task outlives the import.
    explicit TxtImport(const ImportTask& task) : task_(task) {}

    /// Reads all source files. One that cannot be read to its end keeps what was read of it.
    void ReadTxtFiles();
    /// Puts the speeds of each type into the order of the camera files.
    void CollectAllSpeeds();
    /// Writes the camera files. After one that fails the other speeds of its type are lost.
    void WriteAllTypes();

    /// Lines that look like records but have no type.
    std::int32_t BadLines() const { return badLines_; }
    /// Sources that were not read to their end, and camera files, at most one a type, that were not written.
    std::int32_t FailedFiles() const { return failedFiles_; }

private:
    void ReadTxtFile(const std::string& path);
    void ReadLines(platform::TextReader& file);
    void TakeLine(std::string_view line);
    void CollectSpeeds(TypeRecords& records);
    void WriteTypeFiles(int type);

    TypeRecords& Records(int type) { return typeRecords_[static_cast<std::size_t>(type)]; }

    const ImportTask& task_;
    TypeTable<TypeRecords> typeRecords_;
    std::int32_t addedRecords_ = 0;
    std::int32_t shownRecords_ = 0;
    std::int32_t badLines_ = 0;
    std::int32_t failedFiles_ = 0;
};

}  // namespace halvenmoor
