#include "base/text/numbers.h"

#include "base/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <system_error>

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

std::size_t SkipDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count])) ++count;
    text.remove_prefix(count);
    return count;
}

void SkipSign(std::string_view& text) {
    if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
}

double ReadBased(std::string_view digits, int base) {
    double number = 0;
    for (const char digit : digits) {
        if (DigitValue(digit) >= base) break;
        number = number * base + DigitValue(digit);
    }
    return number;
}

/// Whether a number beyond the range of a double is too large for it, not too small.
bool IsTooLarge(std::string_view number) {
    const std::size_t mark = std::min(number.find('e'), number.size());
    const std::size_t point = std::min(number.find('.'), mark);
    long long magnitude =
        static_cast<long long>(point) - static_cast<long long>(number.find_first_of("123456789"));
    if (mark < number.size()) {
        number.remove_prefix(mark + 1);
        if (number.front() == '+') number.remove_prefix(1);
        using Limits = std::numeric_limits<std::int32_t>;
        std::int32_t exponent =
            number.front() == '-' ? Limits::min() : Limits::max();  // stays if out of range
        std::from_chars(number.data(), number.data() + number.size(), exponent);
        magnitude += exponent;
    }
    return magnitude > 0;
}

/// A number without sign and blanks, with "e" before the exponent.
double ReadDecimal(std::string_view text) {
    const bool isNumber = !text.empty() && (IsDigit(text.front()) || text.front() == '.');
    if (!isNumber) return 0;  // from_chars would also read "inf" and "nan"
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc::result_out_of_range) return number;
    return IsTooLarge({text.data(), end}) ? HUGE_VAL : 0;
}

}  // namespace

double LeadingNumber(std::string_view text) {
    std::string number(text);
    std::erase_if(number,
                  [](char character) { return character == ' ' || character == '\t' || character == '\n'; });
    std::string_view rest = number;
    if (rest.starts_with("&H") || rest.starts_with("&h")) return ReadBased(rest.substr(2), 16);
    if (rest.starts_with("&O") || rest.starts_with("&o")) return ReadBased(rest.substr(2), 8);
    std::replace_if(number.begin(), number.end(), IsExponentLetter, 'e');
    SkipSign(rest);
    return number.starts_with('-') ? -ReadDecimal(rest) : ReadDecimal(rest);
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
