#include "platform/qt/windows/contrast.h"

#include <algorithm>
#include <cmath>

namespace halvenmoor::qt {

namespace {

// The guidelines ask for 3 of the parts of a control, and a smoothed circle is less bright than its colour.
constexpr double kVisibleContrast = 4.5;
// How much darker than the window the style draws frames at most, in percent.
constexpr int kFrameDarkness = 150;

double LinearLight(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
    return 0.2126 * LinearLight(color.redF()) + 0.7152 * LinearLight(color.greenF()) +
           0.0722 * LinearLight(color.blueF());
}

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QPalette WithVisibleFrames(QPalette palette) {
    const QColor window = palette.color(QPalette::Window);
    const bool isLight = Contrast(window, Qt::white) < Contrast(window, Qt::black);
    if (isLight) return palette;
    constexpr int kStep = 8;
    for (int tone = 0; tone < 256; tone += kStep) {
        const QColor candidate(tone, tone, tone);
        const QColor frame = candidate.darker(kFrameDarkness);
        if (frame.lightnessF() < window.lightnessF() || Contrast(frame, window) < kVisibleContrast) continue;
        palette.setColor(QPalette::Window, candidate);
        return palette;
    }
    palette.setColor(QPalette::Window, Qt::white);
    return palette;
}

}  // namespace halvenmoor::qt
