#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace halvenmoor {

// The text operations that take a line of a camera file apart. A line is a camera's record, empty or a
// comment:
//
//     record  = X "," Y "," name [ "," extension "," extension ]
//     comment = one of \ / : " < > | ; ! #  then any text
//
// X and Y are decimal degrees with a point, the name normally stands in double quotes, blanks around a field
// do not count.

/// The fields of a line, as parts of the line.
struct FieldList {
    static constexpr std::size_t kMaxCount = 10;

    std::array<std::string_view, kMaxCount> fields;
    std::size_t count = 0;

    std::string_view operator[](std::size_t index) const { return fields[index]; }
    void Append(std::string_view field) { fields[count++] = field; }
};

/// Splits a line at its commas; a field that begins with a double quote ends at the next one, and what stands
/// between that and the comma is lost. False when the quoting is not sound; the fields before are in the list
/// then. There is always at least one field and never more than ten. The line is consumed. Throws
/// Failure(Overflow) for a comma or quote beyond character 32767 of what is left of the line.
bool SplitCameraLine(FieldList& fields, std::string_view& line);

/// Whether the texts are a position: numbers with a point, X from -180 to 180, Y from -90 to 90 and not 0.
bool IsValidPosition(std::string_view x, std::string_view y);

/// Whether "0.0" stands somewhere in both texts.
bool IsZeroPosition(std::string_view x, std::string_view y);

}  // namespace halvenmoor
