#pragma once

namespace halvenmoor::forms {

/// A length on the screen: 1440 to the inch.
using Twips = int;

inline constexpr Twips kTwipsPerPixel = 15;

/// Twips as device-independent pixels, rounded to the nearest.
constexpr int ToPixels(Twips length) {
    return (length >= 0 ? length + kTwipsPerPixel / 2 : length - kTwipsPerPixel / 2) / kTwipsPerPixel;
}

/// The position and size of a control, in twips from the corner of its window's client area or of its frame.
struct Bounds {
    Twips left = 0;
    Twips top = 0;
    Twips width = 0;
    Twips height = 0;
};

/// A point in twips.
struct Point {
    Twips left = 0;
    Twips top = 0;
};

constexpr Point operator+(Point a, Point b) {
    return {a.left + b.left, a.top + b.top};
}

/// A rectangle in pixels; right and bottom lie just outside of it.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// What a window system draws around the client area of a window that is fixed in size, in pixels.
struct FrameMetrics {
    int frameWidth = 0;
    int frameHeight = 0;
    int captionHeight = 0;
    /// The caption of a tool window.
    int smallCaptionHeight = 0;
};

/// A point in pixels.
struct PixelPoint {
    int x = 0;
    int y = 0;
};

}  // namespace halvenmoor::forms
