// The import of an OV2 file, compared with a plain walk over its records, and read back as a camera file.

#include "base/text/numbers.h"
#include "fuzz/memory_platform.h"
#include "fuzz/property.h"
#include "fuzz/slow_camera_line.h"
#include "import/ov2_import.h"
#include "import/ov2_record.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace halvenmoor;
using fuzz::Require;

namespace {

struct Point {
    std::int32_t x;
    std::int32_t y;
    std::string name;
};

std::int32_t Int32(std::string_view bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    }
    return static_cast<std::int32_t>(number);
}

/// The points in front of the end or of a record that is cut; nothing when a record is none.
std::optional<std::vector<Point>> Walk(std::string_view bytes) {
    std::vector<Point> points;
    while (!bytes.empty()) {
        const int type = static_cast<unsigned char>(bytes[0]);
        if (type > 3) return std::nullopt;
        std::size_t size = 21;
        if (type != 1) {
            if (bytes.size() < 5) return points;
            const std::int32_t length = Int32(bytes.substr(1));
            if (length < (type == 0 ? 5 : 14)) return std::nullopt;
            size = static_cast<std::size_t>(length);
        }
        if (bytes.size() < size) return points;
        if (type >= 2) {
            points.push_back(
                {Int32(bytes.substr(5)), Int32(bytes.substr(9)), std::string(bytes.substr(13, size - 14))});
        }
        bytes.remove_prefix(size);
    }
    return points;
}

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

std::string CleanName(std::string name) {
    name.erase(std::remove(name.begin(), name.end(), '\0'), name.end());
    name = Replaced(Replaced(fuzz::Trimmed(name), ",", "; "), "\"", "'");
    while (name.find("  ") != std::string::npos) name = Replaced(name, "  ", " ");
    return '"' + name + '"';
}

std::string Scaled(std::int32_t value) {
    std::string text;
    ScaleCoordinate(text, value);
    const std::size_t point = text.find('.');
    Require(point != std::string::npos && text.size() - point == 6, "there are five digits behind the point");
    Require(std::llround(text::LeadingNumber(text) * 100000) == value,
            "a coordinate reads back to its number");
    return text;
}

std::string CameraFile(const std::vector<Point>& points) {
    std::string text =
        "; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction).\r\n\r\n";
    for (const Point& point : points) {
        text += Scaled(point.x) + ", " + Scaled(point.y) + ", " + CleanName(point.name) + ", 0, 0\r\n";
    }
    return text;
}

bool IsExported(const Point& point) {
    return std::abs(point.x) <= 18'000'000LL && std::abs(point.y) <= 9'000'000LL && point.y != 0;
}

void ReadsBack(const std::string& cameraFile, const std::vector<Point>& points) {
    const auto hasLineEnd = [](const Point& point) { return point.name.find('\n') != std::string::npos; };
    if (std::any_of(points.begin(), points.end(), hasLineEnd)) return;
    const std::vector<std::string> lines = fuzz::Lines(cameraFile);
    Require(std::count_if(lines.begin(), lines.end(), fuzz::IsExported) ==
                std::count_if(points.begin(), points.end(), IsExported),
            "each point with a valid position is read back");
}

/// Byte by byte, a record shows as cut until it is whole, and never asks for more than it needs.
void DecodesByteByByte(std::string_view bytes) {
    const Ov2Record whole = DecodeOv2Record(bytes, 0);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const Ov2Record record = DecodeOv2Record(bytes.substr(0, length), 0);
        if (record.kind == Ov2Record::Kind::Cut) {
            Require(record.size > length, "a cut record asks for more bytes");
            continue;
        }
        Require(record.kind == whole.kind && record.size == whole.size, "more bytes change no whole record");
        Require(record.x == whole.x && record.y == whole.y && record.name == whole.name,
                "more bytes change no whole point");
        return;
    }
}

/// A deleted record that moves what follows across the end of a piece of the reader.
std::string Shifted(std::string_view bytes) {
    constexpr std::size_t kPiece = 64 * 1024;
    const std::size_t before = kPiece - bytes.size() / 2;
    std::string shifted(before, '\0');
    for (std::size_t i = 0; i < 4; ++i) shifted[1 + i] = static_cast<char>(before >> (8 * i) & 0xFF);
    return shifted.append(bytes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::MemoryImport platform(2);
    const std::string_view bytes = fuzz::Text(data, size);
    DecodesByteByByte(bytes);
    platform.memory.Put("/source/a.ov2", bytes);
    platform.memory.Put("/source/b.ov2", Shifted(bytes));
    const int failed = ConvertOv2Files(platform.task);
    platform.memory.ForgetCalls();

    const auto points = Walk(bytes);
    Require(failed == (points ? 0 : 2), "a file fails when one of its records is none");
    for (const char* path : {"/target/a.asc", "/target/b.asc"}) {
        Require(platform.memory.Has(path) == points.has_value(), "a file that fails leaves no camera file");
        if (!points) continue;
        const std::string cameraFile = platform.memory.Text(path);
        Require(cameraFile == CameraFile(*points), "the camera file is the one of the plain walk");
        ReadsBack(cameraFile, *points);
        platform.memory.Remove(path);
    }
    return 0;
}
