#include "platform/qt/services/theme.h"

#include "platform/qt/windows/contrast.h"
#include "platform/qt/windows/conversions.h"

#include <QApplication>
#include <QPalette>

namespace halvenmoor::qt {

namespace {

// What the Web Content Accessibility Guidelines ask of text.
constexpr double kReadableContrast = 4.5;

/// The tone itself, or the nearest one away from the text colour on which the text can be read.
QColor ReadableTone(const QColor& tone, const QColor& text) {
    constexpr int kSteps = 64;
    const int target = 255 - text.red();
    for (int step = 0; step < kSteps; ++step) {
        const auto mixed = [&](int channel) { return channel + (target - channel) * step / kSteps; };
        const QColor candidate(mixed(tone.red()), mixed(tone.green()), mixed(tone.blue()));
        if (Contrast(candidate, text) >= kReadableContrast) return candidate;
    }
    return {target, target, target};
}

QColor Active(QPalette::ColorRole role) {
    return QApplication::palette().color(QPalette::Active, role);
}

}  // namespace

std::optional<forms::Color> QtTheme::SystemColor(int number) const {
    switch (number) {
        case forms::kHighlightNumber:
            return ToColor(ReadableTone(Active(QPalette::Highlight), Qt::white));
        case forms::kButtonFaceNumber:
            return ToColor(ReadableTone(Active(QPalette::Button), Qt::black));
        case forms::kButtonShadowNumber:
            return ToColor(Active(QPalette::Dark));
        case forms::kButtonTextNumber:
            return ToColor(Active(QPalette::ButtonText));
        case forms::kButtonHighlightNumber:
            return ToColor(Active(QPalette::Light));
        default:
            return std::nullopt;
    }
}

std::optional<forms::Color> QtTheme::GroupBoxTextColor() const {
    return ToColor(QApplication::palette("QGroupBox").color(QPalette::Active, QPalette::WindowText));
}

}  // namespace halvenmoor::qt
