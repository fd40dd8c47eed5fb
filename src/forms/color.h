#pragma once

#include <cstdint>

namespace halvenmoor::forms {

/// A colour value. Top bit clear: a plain colour, 0x00BBGGRR. Top bit set: a system colour whose number
/// stands in the low bits.
using Color = std::int32_t;

constexpr Color SystemColor(int number) {
    return static_cast<Color>(0x80000000u | static_cast<unsigned>(number));
}
constexpr bool IsSystemColor(Color color) {
    return color < 0;
}
/// The number of a system colour, 0 to 31.
constexpr int SystemColorNumber(Color color) {
    return color & 31;
}

constexpr Color Rgb(int red, int green, int blue) {
    return (blue << 16) | (green << 8) | red;
}

// The system colours that the windows use, by their Windows numbers.
inline constexpr int kHighlightNumber = 13;
inline constexpr int kButtonFaceNumber = 15;
inline constexpr int kButtonShadowNumber = 16;
inline constexpr int kButtonTextNumber = 18;
inline constexpr int kButtonHighlightNumber = 20;

inline constexpr Color kButtonFace = SystemColor(kButtonFaceNumber);
inline constexpr Color kHighlight = SystemColor(kHighlightNumber);

}  // namespace halvenmoor::forms
