// One line of a camera file, taken apart; its first two fields as a position.

#include "export/camera_line.h"

#include "base/text/numbers.h"
#include "base/text/trim.h"
#include "fuzz/property.h"
#include "fuzz/slow_camera_line.h"

#include <algorithm>
#include <cmath>

using namespace halvenmoor;
using fuzz::Require;

namespace {

void SplitsAsTheSlowWay(std::string_view line, const FieldList& fields, bool isSound) {
    const fuzz::SlowFields slow = fuzz::SlowSplit(std::string(line));
    Require(isSound == slow.isSound, "quoting is judged as in the slow way");
    Require(fields.count == slow.fields.size(), "there are as many fields as in the slow way");
    for (std::size_t i = 0; i < fields.count; ++i) {
        Require(fields[i] == slow.fields[i], "a field is the same as in the slow way");
    }
}

void LosesOnlyBlanks(std::string_view line, const FieldList& fields) {
    const auto commas = std::count(line.begin(), line.end(), ',');
    const bool isPlain = line.find('"') == std::string_view::npos;
    if (!isPlain || commas >= static_cast<std::ptrdiff_t>(FieldList::kMaxCount)) return;
    Require(static_cast<std::ptrdiff_t>(fields.count) == commas + 1, "each comma of a plain line separates");
    for (std::size_t i = 0; i < fields.count; ++i) {
        const std::string_view written = fuzz::TakeUpTo(line, ',');
        Require(text::Trim(written) == fields[i], "a plain field loses nothing but blanks at its ends");
    }
}

bool IsSlowlyValid(std::string_view x, std::string_view y) {
    for (const std::string_view text : {x, y}) {
        if (text.find('.') == std::string_view::npos || !text::IsNumericText(text, ".")) return false;
    }
    const double latitude = text::LeadingNumber(y);
    return std::fabs(text::LeadingNumber(x)) <= 180 && std::fabs(latitude) <= 90 && latitude != 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line = fuzz::Text(data, size);
    FieldList fields;
    std::string_view rest = line;
    const bool isSound = SplitCameraLine(fields, rest);
    Require(fields.count >= 1 && fields.count <= FieldList::kMaxCount, "there are one to ten fields");
    SplitsAsTheSlowWay(line, fields, isSound);
    LosesOnlyBlanks(line, fields);
    if (fields.count >= 2) {
        Require(IsValidPosition(fields[0], fields[1]) == IsSlowlyValid(fields[0], fields[1]),
                "a position is judged as by its numbers");
    }
    return 0;
}
