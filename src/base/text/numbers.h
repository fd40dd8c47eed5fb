#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace halvenmoor::text {

/// The number that a text begins with, 0 when there is none. Blanks, tabs and line feeds are skipped wherever
/// they stand. A sign, digits with at most one point, and an exponent with E or D may follow, or else &H with
/// hexadecimal or &O with octal digits. A number beyond the range of a double is infinite.
double LeadingNumber(std::string_view text);

/// Whether the whole text is a number: an optional sign, digits with at most one decimal separator (also
/// ".5" and "5."), and an optional exponent with E or D. Blanks are not accepted.
bool IsNumericText(std::string_view text, std::string_view decimalSeparator) noexcept;

/// A number as text: up to 15 significant digits, no separator in a whole number, and an exponent, as in
/// 1E+20 or 1E-05, from 1E+15 on and below 0.0001. Throws Failure(Overflow) unless the number is finite.
std::string GeneralNumber(double number, std::string_view decimalSeparator);

[[noreturn]] void ThrowOverflow();

/// The value as a 16-bit number; throws Failure(Overflow) if it does not fit.
inline std::int16_t CheckedInt16(long long value) {
    if (!std::in_range<std::int16_t>(value)) ThrowOverflow();
    return static_cast<std::int16_t>(value);
}

/// The value as a 32-bit number; throws Failure(Overflow) if it does not fit.
inline std::int32_t CheckedInt32(long long value) {
    if (!std::in_range<std::int32_t>(value)) ThrowOverflow();
    return static_cast<std::int32_t>(value);
}

/// The nearest whole number; a half goes to the even neighbour.
inline long long RoundHalfEven(double number) {
    return std::llrint(number);
}

/// The sum in the type of the first addend (16 or 32 bits); throws Failure(Overflow) if it does not fit.
template <std::signed_integral Whole>
requires(sizeof(Whole) < sizeof(long long)) Whole CheckedAdd(Whole a, std::type_identity_t<Whole> b) {
    const long long sum = static_cast<long long>(a) + b;
    if (!std::in_range<Whole>(sum)) ThrowOverflow();
    return static_cast<Whole>(sum);
}

}  // namespace halvenmoor::text
