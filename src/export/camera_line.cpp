#include "export/camera_line.h"

#include "base/text/decode.h"
#include "base/text/numbers.h"
#include "base/text/words.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>

namespace halvenmoor {

namespace {

constexpr std::size_t kMaxPosition = std::numeric_limits<std::int16_t>::max();

/// Fails when the comma or quote behind that text has no 16-bit position. Positions count characters, of
/// which there are never more than bytes.
void CheckPosition(std::string_view before) {
    if (before.size() < kMaxPosition) return;
    if (text::CharacterCount(before) >= kMaxPosition) text::ThrowOverflow();
}

/// The end of the line counts as a comma.
std::string_view UpToComma(std::string_view rest) {
    return rest.substr(0, std::min(rest.find(','), rest.size()));
}

bool SplitFields(FieldList& fields, std::string_view line) {
    const char* at = line.data();
    const char* const end = at + line.size();
    while (fields.count < FieldList::kMaxCount) {
        while (at != end && *at == ' ') ++at;
        const std::string_view rest(at, end);
        // The comma's position counts even where quotes hide the comma.
        if (rest.size() >= kMaxPosition) CheckPosition(UpToComma(rest));
        const char* pastField = at;
        if (!rest.empty() && rest.front() == '"') {
            const std::size_t closingQuote = rest.find('"', 1);
            if (closingQuote == std::string_view::npos) return false;
            CheckPosition(rest.substr(0, closingQuote));
            at = pastField += closingQuote + 1;
            while (at != end && *at != ',') ++at;
            CheckPosition({pastField, at});
        } else {
            at = std::find_if(at, end, [](char c) { return c == ',' || c == '"'; });
            if (at != end && *at == '"') return false;
            pastField = at;
            while (pastField != rest.data() && pastField[-1] == ' ') --pastField;
        }
        fields.Append({rest.data(), pastField});
        if (at == end) return true;
        ++at;
    }
    return true;
}

/// A coordinate of the usual form: a sign or none, one to three digits, a point, digits or none.
struct PlainDegrees {
    unsigned whole = 0;
    bool hasFraction = false;

    bool IsWithin(unsigned limit) const { return whole < limit || (whole == limit && !hasFraction); }
    bool IsZero() const { return whole == 0 && !hasFraction; }
};

/// The values of up to eight digits, one in a byte. What is no digit gives more than 9.
text::Word Digits(std::string_view text) {
    return text::FirstBytes(text::LoadShort(text) ^ text::RepeatByte('0'), text.size());
}

bool AreDigits(text::Word digits) {
    constexpr char kUpToHighBit = 0x80 - 10;
    return (((digits + text::RepeatByte(kUpToHighBit)) | digits) & text::RepeatByte('\x80')) == 0;
}

/// Nothing for any other form, number or not. So few digits are never lost in a double, so the result tells
/// the same as the number. Every coordinate comes here: taking its characters eight at a time makes an export
/// 1.12 times as fast.
std::optional<PlainDegrees> ReadPlainDegrees(std::string_view text) {
    constexpr std::size_t kWordSize = sizeof(text::Word);
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
    if (text.size() > 2 * kWordSize) return std::nullopt;
    text::Word digits = Digits(text.substr(0, kWordSize));
    const text::Word moreDigits = text.size() > kWordSize ? Digits(text.substr(kWordSize)) : 0;

    const text::Word point = text::BytesEqual(digits, '.' ^ '0');
    const int wholeBits = std::countr_zero(point) / 8 * 8;
    if (point == 0 || wholeBits < 8 || wholeBits > 24) return std::nullopt;
    digits &= ~(text::Word{0xFF} << wholeBits);
    if (!AreDigits(digits) || !AreDigits(moreDigits)) return std::nullopt;

    const auto whole = static_cast<unsigned>(digits << (24 - wholeBits));
    return PlainDegrees{.whole = (whole & 0xFF) * 100 + (whole >> 8 & 0xFF) * 10 + (whole >> 16 & 0xFF),
                        .hasFraction = (digits >> wholeBits | moreDigits) != 0};
}

/// The point is what the user's decimal separator stands for here: a number with another separator beside the
/// point, or instead of it, is refused under every locale.
bool IsCoordinateText(std::string_view text) {
    return text.find('.') != std::string_view::npos && text::IsNumericText(text, ".");
}

}  // namespace

bool SplitCameraLine(FieldList& fields, std::string_view& line) {
    fields.count = 0;
    const bool isSound = SplitFields(fields, line);
    if (fields.count == 0) fields.Append({});
    line = {};
    return isSound;
}

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

}  // namespace halvenmoor
