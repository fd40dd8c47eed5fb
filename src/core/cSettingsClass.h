#pragma once

#include "core/camera_types.h"
#include "core/patterns.h"
#include "platform/files.h"

#include <string>
#include <string_view>

namespace halvenmoor {

/// The classification settings, as Settings.ini had them when this object was made. A file that cannot be
/// read leaves the structure at 0 and every list without a value.
class cSettingsClass {
public:
    cSettingsClass(platform::FileSystem& fileSystem, std::string_view path);

    /// Which extra fields camera records have: 1 none; 2 DirType, then Direction; 3 Direction, then DirType;
    /// 0 when the file could not be read.
    int SourceStructure() const { return sourceStructure_; }
    /// By type, wildcard patterns for the names of camera files.
    const TypeTable<PatternList>& TypeFileNamePatterns() const { return typeFileNamePatterns_; }
    /// By type, texts to look for in the names of cameras.
    const TypeTable<PatternList>& TypeSearchPatterns() const { return typeSearchPatterns_; }
    /// Speed units at the end of camera-file names.
    const PatternList& UnitSearchPatterns() const { return unitSearchPatterns_; }

private:
    void Class_Initialize(platform::FileSystem& fileSystem, std::string_view path);

    int sourceStructure_ = 0;
    TypeTable<PatternList> typeFileNamePatterns_;
    TypeTable<PatternList> typeSearchPatterns_;
    PatternList unitSearchPatterns_;
};

}  // namespace halvenmoor
