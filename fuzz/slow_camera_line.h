#pragma once

#include "base/text/trim.h"
#include "export/camera_line.h"

#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::fuzz {

// The reading of camera lines, written once more, slowly and step by step as the format is described.

inline std::string Trimmed(std::string text) {
    while (text.starts_with(' ')) text.erase(0, 1);
    while (text.ends_with(' ')) text.pop_back();
    return text;
}

struct SlowFields {
    std::vector<std::string> fields;
    bool isSound = true;
};

inline SlowFields SlowSplit(std::string line) {
    SlowFields split;
    line += ',';
    for (int pass = 0; pass < 10; ++pass) {
        while (line.starts_with(' ')) line.erase(0, 1);
        std::size_t comma = line.find(',');
        if (line.starts_with('"')) {
            const std::size_t quote = line.find('"', 1);
            split.isSound = quote != std::string::npos;
            if (!split.isSound) break;
            split.fields.push_back(line.substr(0, quote + 1));
            line.erase(0, quote + 1);
            comma = line.find(',');
        } else {
            if (comma == std::string::npos) break;
            const std::string field = Trimmed(line.substr(0, comma));
            split.isSound = field.find('"') == std::string::npos;
            if (!split.isSound) break;
            split.fields.push_back(field);
        }
        line.erase(0, comma + 1);
    }
    if (split.fields.empty()) split.fields.emplace_back();
    return split;
}

inline bool IsComment(std::string_view line) {
    return !line.empty() && std::string_view("\\/:\"<>|;!#").find(line.front()) != std::string_view::npos;
}

/// Whether an export takes the line of a camera file.
inline bool IsExported(const std::string& line) {
    FieldList fields;
    std::string_view rest = text::StripComment(text::Trim(line));
    const bool isSound = SplitCameraLine(fields, rest);
    return isSound && (fields.count == 3 || fields.count == 5) && IsValidPosition(fields[0], fields[1]);
}

}  // namespace halvenmoor::fuzz
