#include "platform/qt/windows/caption.h"

#include <QFontMetrics>
#include <QRect>
#include <algorithm>

namespace halvenmoor::qt {

namespace {

constexpr int kStretches[] = {100, 95, 90, 85};

bool Fits(const QString& text, const QFont& font, const QSize& size, Qt::TextFlag lines) {
    const QFontMetrics metrics(font);
    // A single line is never too high, lest a large font leaves nothing of it.
    const QRect place(0, 0, size.width(), std::max(size.height(), metrics.height()));
    return place.contains(metrics.boundingRect(place, lines, text));
}

QString Elided(QString text, const QFont& font, const QSize& size, Qt::TextFlag lines) {
    constexpr char16_t kEllipsis = u'\u2026';
    while (!text.isEmpty() && !Fits(text + kEllipsis, font, size, lines)) {
        text.chop(text.back().isLowSurrogate() ? 2 : 1);
    }
    return text + kEllipsis;
}

}  // namespace

FittedCaption FitCaption(const QString& caption, QFont font, const QSize& size, Qt::TextFlag lines) {
    for (const int stretch : kStretches) {
        font.setStretch(stretch);
        if (Fits(caption, font, size, lines)) return {caption, font};
        // Hints would round the width of each letter to whole pixels, by far more than these steps.
        font.setHintingPreference(QFont::PreferNoHinting);
    }
    return {Elided(caption, font, size, lines), font};
}

}  // namespace halvenmoor::qt
