#include "export/camera_file.h"

#include "core/text/compare.h"
#include "core/text/decode.h"
#include "core/text/numbers.h"
#include "core/text/trim.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace halvenmoor {

namespace {

constexpr std::size_t kMaxPosition = std::numeric_limits<std::int16_t>::max();

/// Fails when the comma or quote behind that many bytes has no 16-bit position. Positions count characters,
/// of which there are never more than bytes.
void CheckPosition(std::string_view line, std::size_t bytesBefore) {
    if (bytesBefore < kMaxPosition) return;
    if (text::CharacterCount(line.substr(0, bytesBefore)) >= kMaxPosition) text::ThrowOverflow();
}

/// What is left of a line to which one comma was appended, so that the last field too ends at a comma.
class RestOfLine {
public:
    explicit RestOfLine(std::string_view line) : rest_(line) {}

    void DropBlanks() { rest_ = text::TrimLeft(rest_); }
    bool StartsWithQuote() const { return !rest_.empty() && rest_.front() == '"'; }
    bool IsUsedUp() const { return !hasLastComma_; }

    /// The bytes in front of the first comma.
    std::size_t BytesToComma() const {
        const std::size_t bytes = std::min(rest_.find(','), rest_.size());
        CheckPosition(rest_, bytes);
        return bytes;
    }

    /// The bytes up to and with the quote that closes the one at the start; 0 when there is none.
    std::size_t BytesToClosingQuote() const {
        const std::size_t closing = rest_.find('"', 1);
        if (closing == std::string_view::npos) return 0;
        CheckPosition(rest_, closing);
        return closing + 1;
    }

    std::string_view Peek(std::size_t bytes) const { return rest_.substr(0, bytes); }

    std::string_view Take(std::size_t bytes) {
        const std::string_view taken = rest_.substr(0, bytes);
        rest_.remove_prefix(bytes);
        return taken;
    }

    /// Drops what stands in front of the first comma, and the comma.
    void DropPastComma(std::size_t bytesToComma) {
        hasLastComma_ = bytesToComma < rest_.size();
        rest_.remove_prefix(std::min(bytesToComma + 1, rest_.size()));
    }

private:
    std::string_view rest_;
    bool hasLastComma_ = true;
};

bool SplitFields(FieldList& fields, RestOfLine rest) {
    while (fields.count < FieldList::kMaxCount) {
        rest.DropBlanks();
        if (rest.IsUsedUp()) return true;
        std::size_t bytesToComma = rest.BytesToComma();
        if (rest.StartsWithQuote()) {
            const std::size_t bytes = rest.BytesToClosingQuote();
            if (bytes == 0) return false;
            fields.Append(rest.Take(bytes));
            bytesToComma = rest.BytesToComma();
        } else {
            const std::string_view field = text::Trim(rest.Peek(bytesToComma));
            if (field.find('"') != std::string_view::npos) return false;
            fields.Append(field);
        }
        rest.DropPastComma(bytesToComma);
    }
    return true;
}

}  // namespace

bool SplitCameraLine(FieldList& fields, std::string_view& line) {
    fields.count = 0;
    const bool isSound = SplitFields(fields, RestOfLine(line));
    if (fields.count == 0) fields.Append({});
    line = {};
    return isSound;
}

namespace {

bool HasPoint(std::string_view text) {
    return text.find('.') != std::string_view::npos;
}

bool IsCoordinateText(std::string_view text, std::string_view decimalSeparator) {
    if (!HasPoint(text)) return false;
    if (decimalSeparator == ".") return text::IsNumericText(text, decimalSeparator);
    std::string local;
    for (const char character : text) {
        if (character == '.') {
            local += decimalSeparator;
        } else {
            local += character;
        }
    }
    return text::IsNumericText(local, decimalSeparator);
}

}  // namespace

bool IsValidPosition(std::string_view x, std::string_view y, std::string_view decimalSeparator) {
    if (!IsCoordinateText(x, decimalSeparator) || !IsCoordinateText(y, decimalSeparator)) return false;
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
