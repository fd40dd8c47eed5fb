#pragma once

#include "base/text/codepage.h"
#include "forms/color.h"
#include "forms/font.h"
#include "forms/geometry.h"

#include <QColor>
#include <QFont>
#include <QKeySequence>
#include <QList>
#include <QPalette>
#include <QRect>
#include <QString>
#include <string>
#include <string_view>

namespace halvenmoor::qt {

/// At 96 dots per inch.
inline constexpr double kPixelsPerPoint = 96.0 / 72.0;

/// Bytes as they are shown: UTF-8, anything else by the code page.
QString ToText(std::string_view bytes, const text::CodePage& page);

/// The same for one row of a list: characters that would break the line show as their signs.
QString ToRow(std::string_view bytes, const text::CodePage& page);

// Paths as the rest of the program has them, with the system's own separator.
std::string ToPath(const QString& path);
QString FromPath(const std::string& path);

/// A text for a control that would take an & for the mark of a shortcut.
QString WithoutShortcut(QString text);

/// The key of a shortcut by its name; each of them where several have it.
QList<QKeySequence> ToKeys(const std::string& name);

/// The side on which lines of such a text begin.
Qt::Alignment SideOf(const QString& text);

/// The font in the pixel size that belongs to its points.
QFont ToFont(const forms::Font& font);

/// The bounds in pixels. At a scale of quarters (1.25, 1.5 …) each edge is moved to the nearest whole device
/// pixel: lines that lie between two of them are lost.
QRect ToRect(const forms::Bounds& bounds, double scale);
QRect ToRect(const forms::PixelRect& area);

/// The colour of the thin lines around frames and lists.
QColor BorderColor(const QPalette& palette);

forms::Color ToColor(const QColor& color);
/// Of a plain colour.
QColor ToQColor(forms::Color color);

}  // namespace halvenmoor::qt
