#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace halvenmoor {

/// One record of an OV2 file. Such a file is a plain sequence of records, each beginning with its type byte;
/// numbers are 32-bit, signed, little-endian:
///
///     0        deleted   Length, then Length - 5 bytes
///     1        skipper   20 bytes
///     2 and 3  point     Length, X, Y, then Length - 13 bytes of name, the last of them its terminator
///
/// Length counts the whole record, the type byte too.
struct Ov2Record {
    enum class Kind {
        Deleted,
        Skipper,
        Point,
        /// A type byte that no record has.
        Other,
        /// A length in which the record's own fields, or one byte of a name, do not fit.
        BadLength,
        /// The bytes end before the record does, or there are none.
        Cut
    };

    Kind kind;
    /// The bytes of the whole record; of a cut one as many as it takes to tell more.
    std::size_t size = 0;
    // Of a point, in hundred-thousandths of a degree.
    std::int32_t x = 0;
    std::int32_t y = 0;
    /// Of a point: all of its name's bytes, a view into the bytes given. Never empty.
    std::string_view name = {};
};

/// The record that begins at the offset, which is not behind the end of the bytes.
Ov2Record DecodeOv2Record(std::string_view bytes, std::size_t offset);

/// Appends a coordinate in degrees, given in hundred-thousandths of one: always five digits behind the point,
/// at least one before it. Nothing is rounded.
void ScaleCoordinate(std::string& out, std::int32_t hundredThousandths);

/// Appends a point's name as a quoted field: without its last byte, without zero bytes, without blanks at its
/// ends, each comma as "; ", each quote as an apostrophe, and then each run of blanks as one.
void CleanPoiName(std::string& out, std::string_view name);

}  // namespace halvenmoor
