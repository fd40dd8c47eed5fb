#pragma once

#include <QColor>
#include <QPalette>

namespace halvenmoor::qt {

/// The contrast of two colours, from 1 to 21, as the Web Content Accessibility Guidelines define it.
double Contrast(const QColor& a, const QColor& b);

/// The palette for check boxes and option buttons. Qt's own style draws their frames in a darker tone of the
/// window, which on a dark window cannot be seen; in this palette they stand out of it.
QPalette WithVisibleFrames(QPalette palette);

}  // namespace halvenmoor::qt
