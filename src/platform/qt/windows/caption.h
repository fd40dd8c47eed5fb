#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace halvenmoor::qt {

/// A caption as its control shows it.
struct FittedCaption {
    QString text;
    QFont font;
};

/// Makes a caption fit the size, in pixels: the font is narrowed to 85 percent at most, then the end of the
/// text gives way to an ellipsis. The text has one line (Qt::TextSingleLine) or breaks into lines
/// (Qt::TextWordWrap).
FittedCaption FitCaption(const QString& caption, QFont font, const QSize& size, Qt::TextFlag lines);

}  // namespace halvenmoor::qt
