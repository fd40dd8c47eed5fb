#include "base/text/numbers.h"

#include "base/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace halvenmoor::text {
namespace {

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

constexpr bool IsExponentLetter(char character) {
    return character == 'E' || character == 'e' || character == 'D' || character == 'd';
}

/// The value of a digit in any base up to 16, 16 if it is none.
constexpr int DigitValue(char character) {
    if (IsDigit(character)) return character - '0';
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    return 16;
}

/// Walks over a text and passes by blanks, tabs and line feeds.
class Cursor {
public:
    explicit Cursor(std::string_view text) : rest_(text) {}

    /// The next character, NUL at the end.
    char Peek() {
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t' || rest_.front() == '\n')) {
            rest_.remove_prefix(1);
        }
        return rest_.empty() ? '\0' : rest_.front();
    }

    /// Only behind a Peek that gave a character.
    void Advance() { rest_.remove_prefix(1); }

    bool Accept(char character) {
        if (Peek() != character) return false;
        Advance();
        return true;
    }

    /// Whether a minus sign stood there; a plus sign is passed by as well.
    bool AcceptMinus() {
        if (Accept('-')) return true;
        Accept('+');
        return false;
    }

private:
    std::string_view rest_;
};

/// A decimal number of any length in bounded space: the digits that a double can depend on, and a power of
/// ten.
class Decimal {
public:
    void Add(char digit, bool isFraction) {
        if (isFraction) --exponent_;
        const bool isLeadingZero = count_ == 0 && digit == '0';
        if (isLeadingZero) return;
        if (count_ < kMaxDigits) {
            digits_[count_++] = digit;
            return;
        }
        ++exponent_;
        hasMore_ = hasMore_ || digit != '0';
    }

    void Scale(long long powerOfTen) { exponent_ += powerOfTen; }

    double Value() {
        if (count_ == 0) return 0;
        if (hasMore_ && digits_[count_ - 1] == '0') digits_[count_ - 1] = '1';
        const long long magnitude = exponent_ + static_cast<long long>(count_);
        const long long exponent = std::clamp(exponent_, -99999LL, 99999LL);
        char* const end = digits_.data() + count_;
        *end = 'e';
        const char* const last = std::to_chars(end + 1, digits_.data() + digits_.size(), exponent).ptr;
        double number = 0;
        // A number out of range leaves `number` as it is, whether too large or too small.
        const std::errc error = std::from_chars(digits_.data(), last, number).ec;
        return error == std::errc{} ? number : magnitude > 0 ? HUGE_VAL : 0;
    }

private:
    // What decides how a number is rounded: at most 767 digits, and whether anything but zeros follows.
    static constexpr std::size_t kMaxDigits = 770;
    static constexpr std::size_t kExponentSize = 8;

    std::array<char, kMaxDigits + kExponentSize> digits_;  // only the first count_ are set
    std::size_t count_ = 0;
    long long exponent_ = 0;
    bool hasMore_ = false;
};

double ReadBased(Cursor& cursor, int base) {
    double number = 0;
    for (int digit = DigitValue(cursor.Peek()); digit < base; digit = DigitValue(cursor.Peek())) {
        number = number * base + digit;
        cursor.Advance();
    }
    return number;
}

long long ReadExponent(Cursor& cursor) {
    // Far beyond what any number of digits in memory can make up for.
    constexpr long long kMaxExponent = 1'000'000'000'000'000;
    const bool isNegative = cursor.AcceptMinus();
    long long exponent = 0;
    for (char digit = cursor.Peek(); IsDigit(digit); digit = cursor.Peek()) {
        if (exponent < kMaxExponent) exponent = exponent * 10 + (digit - '0');
        cursor.Advance();
    }
    return isNegative ? -exponent : exponent;
}

double ReadDecimal(Cursor& cursor) {
    const bool isNegative = cursor.AcceptMinus();
    Decimal decimal;
    bool isFraction = false;
    for (char next = cursor.Peek(); IsDigit(next) || (next == '.' && !isFraction); next = cursor.Peek()) {
        if (next == '.') {
            isFraction = true;
        } else {
            decimal.Add(next, isFraction);
        }
        cursor.Advance();
    }
    if (IsExponentLetter(cursor.Peek())) {
        cursor.Advance();
        decimal.Scale(ReadExponent(cursor));
    }
    return isNegative ? -decimal.Value() : decimal.Value();
}

std::size_t SkipDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count])) ++count;
    text.remove_prefix(count);
    return count;
}

void SkipSign(std::string_view& text) {
    if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
}

}  // namespace

double LeadingNumber(std::string_view text) noexcept {
    Cursor cursor(text);
    if (!cursor.Accept('&')) return ReadDecimal(cursor);
    if (cursor.Accept('H') || cursor.Accept('h')) return ReadBased(cursor, 16);
    if (cursor.Accept('O') || cursor.Accept('o')) return ReadBased(cursor, 8);
    return 0;
}

bool IsNumericText(std::string_view text, std::string_view decimalSeparator) noexcept {
    SkipSign(text);
    std::size_t digits = SkipDigits(text);
    if (!decimalSeparator.empty() && text.starts_with(decimalSeparator)) {
        text.remove_prefix(decimalSeparator.size());
        digits += SkipDigits(text);
    }
    if (digits == 0 || text.empty()) return digits != 0;
    if (!IsExponentLetter(text.front())) return false;
    text.remove_prefix(1);
    SkipSign(text);
    return SkipDigits(text) != 0 && text.empty();
}

std::string GeneralNumber(double number, std::string_view decimalSeparator) {
    constexpr int kMaxDigits = 15;
    if (!std::isfinite(number)) ThrowOverflow();
    if (number == 0) return "0";  // zero may bear a minus sign

    std::array<char, 32> buffer;
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                    std::chars_format::general, kMaxDigits)
                          .ptr;
    std::string text(buffer.data(), end);
    const std::size_t mark = text.find('e');
    if (mark != std::string::npos) text[mark] = 'E';
    const std::size_t point = text.find('.');
    if (point != std::string::npos) text.replace(point, 1, decimalSeparator);
    return text;
}

void ThrowOverflow() {
    throw Failure(failure::Overflow, "the number is too large for its type");
}

}  // namespace halvenmoor::text
