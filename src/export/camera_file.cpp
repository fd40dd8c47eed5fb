#include "export/camera_file.h"

#include "core/text/compare.h"
#include "core/text/decode.h"
#include "core/text/numbers.h"
#include "core/text/trim.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace halvenmoor {

namespace {

constexpr std::size_t kMaxPosition = std::numeric_limits<std::int16_t>::max();

/// Fails when the comma or quote behind that many bytes has no 16-bit position. Positions count characters,
/// of which there are never more than bytes.
void CheckPosition(std::string_view rest, std::size_t bytesBefore) {
    if (bytesBefore < kMaxPosition) return;
    if (text::CharacterCount(rest.substr(0, bytesBefore)) >= kMaxPosition) text::ThrowOverflow();
}

// Plain loops: what they look for is near.

/// The bytes in front of the first comma. The end of the line counts as one.
std::size_t BytesToComma(std::string_view rest) {
    std::size_t bytes = 0;
    while (bytes < rest.size() && rest[bytes] != ',') ++bytes;
    CheckPosition(rest, bytes);
    return bytes;
}

std::size_t BytesToCommaOrQuote(std::string_view rest) {
    std::size_t bytes = 0;
    while (bytes < rest.size() && rest[bytes] != ',' && rest[bytes] != '"') ++bytes;
    return bytes;
}

bool SplitFields(FieldList& fields, std::string_view rest) {
    while (fields.count < FieldList::kMaxCount) {
        rest = text::TrimLeft(rest);
        // The comma's position counts even where quotes hide the comma, but only a long line can break its
        // limit.
        if (rest.size() >= kMaxPosition) BytesToComma(rest);
        std::size_t bytesToComma = 0;
        if (!rest.empty() && rest.front() == '"') {
            const std::size_t closingQuote = rest.find('"', 1);
            if (closingQuote == std::string_view::npos) return false;
            CheckPosition(rest, closingQuote);
            fields.Append(rest.substr(0, closingQuote + 1));
            rest.remove_prefix(closingQuote + 1);
            bytesToComma = BytesToComma(rest);
        } else {
            bytesToComma = BytesToCommaOrQuote(rest);
            if (bytesToComma < rest.size() && rest[bytesToComma] == '"') return false;
            fields.Append(text::Trim(rest.substr(0, bytesToComma)));
        }
        if (bytesToComma == rest.size()) return true;
        rest.remove_prefix(bytesToComma + 1);
    }
    return true;
}

}  // namespace

bool SplitCameraLine(FieldList& fields, std::string_view& line) {
    fields.count = 0;
    const bool isSound = SplitFields(fields, line);
    if (fields.count == 0) fields.Append({});
    line = {};
    return isSound;
}

namespace {

/// A coordinate of the usual form: a sign, up to three digits, a point, up to twelve digits.
struct PlainDegrees {
    int whole = 0;
    bool hasFraction = false;

    bool IsWithin(int limit) const { return whole < limit || (whole == limit && !hasFraction); }
    bool IsZero() const { return whole == 0 && !hasFraction; }
};

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Nothing for any other form, number or not. So many digits are never lost in a double, so the result tells
/// the same as the number.
std::optional<PlainDegrees> ReadPlainDegrees(std::string_view text) {
    PlainDegrees degrees;
    std::size_t at = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const std::size_t firstDigit = at;
    const std::size_t pastWhole = std::min(firstDigit + 3, text.size());
    for (; at < pastWhole && IsDigit(text[at]); ++at) degrees.whole = degrees.whole * 10 + (text[at] - '0');
    if (at == firstDigit || at == text.size() || text[at] != '.') return std::nullopt;
    const std::size_t firstDecimal = ++at;
    for (; at < text.size() && IsDigit(text[at]); ++at) degrees.hasFraction |= text[at] != '0';
    if (at < text.size() || at > firstDecimal + 12) return std::nullopt;
    return degrees;
}

/// The point is what the user's decimal separator stands for here: a number with another separator beside the
/// point, or instead of it, is refused under every locale.
bool IsCoordinateText(std::string_view text) {
    return text.find('.') != std::string_view::npos && text::IsNumericText(text, ".");
}

}  // namespace

bool IsValidPosition(std::string_view x, std::string_view y) {
    const auto plainX = ReadPlainDegrees(x);
    const auto plainY = ReadPlainDegrees(y);
    if (plainX && plainY) return plainX->IsWithin(180) && plainY->IsWithin(90) && !plainY->IsZero();
    if (!IsCoordinateText(x) || !IsCoordinateText(y)) return false;
    const double latitude = text::LeadingNumber(y);
    return std::fabs(text::LeadingNumber(x)) <= 180.0 && std::fabs(latitude) <= 90.0 && latitude != 0;
}

bool IsZeroPosition(std::string_view x, std::string_view y) {
    return x.find("0.0") != std::string_view::npos && y.find("0.0") != std::string_view::npos;
}

std::string_view StripUnitSuffix(std::string_view name, const PatternList& units,
                                 const text::CodePage& codePage) {
    for (const std::string& unit : Elements(units)) {
        if (const auto stripped = text::WithoutEnding(name, text::Trim(unit), codePage)) return *stripped;
    }
    return name;
}

std::string SpeedFromFileName(std::string_view name, const PatternList& units,
                              const platform::Locale& locale) {
    const std::u32string characters =
        text::Decode(StripUnitSuffix(name, units, locale.CodePage()), locale.CodePage());
    for (const std::size_t length : {std::size_t{3}, std::size_t{2}}) {
        const std::size_t start = characters.size() - std::min(length, characters.size());
        const double speed =
            text::LeadingNumber(text::EncodeUtf8(std::u32string_view(characters).substr(start)));
        if (speed > 0) return text::GeneralNumber(speed, locale.DecimalSeparator());
    }
    return "0";
}

}  // namespace halvenmoor
