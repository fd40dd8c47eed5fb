#include "platform/qt/windows/conversions.h"

#include "base/text/decode.h"

#include <QDir>
#include <cmath>

namespace halvenmoor::qt {

namespace {

// Unicode has a visible sign for each control character.
constexpr char16_t kFirstControlSign = 0x2400;

/// The smallest number of pixels that are whole device pixels; 1 at scales that are no quarters.
int GridStep(double scale) {
    for (const int step : {1, 2, 4}) {
        const double devicePixels = step * scale;
        if (std::abs(devicePixels - std::round(devicePixels)) < 0.01) return step;
    }
    return 1;
}

}  // namespace

QString ToText(std::string_view bytes, const text::CodePage& page) {
    return QString::fromStdString(text::ToUtf8(bytes, page));
}

QString ToRow(std::string_view bytes, const text::CodePage& page) {
    QString row = ToText(bytes, page);
    for (QChar& character : row) {
        if (character < u' ')
            character = QChar(static_cast<char16_t>(kFirstControlSign + character.unicode()));
    }
    return row;
}

Qt::Alignment SideOf(const QString& text) {
    return Qt::AlignAbsolute | (text.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
}

QString WithoutShortcut(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

QList<QKeySequence> ToKeys(const std::string& name) {
    if (name == "Enter") return {Qt::Key_Return, Qt::Key_Enter};
    return {QKeySequence(QString::fromStdString(name), QKeySequence::PortableText)};
}

std::string ToPath(const QString& path) {
    return QDir::toNativeSeparators(path).toStdString();
}

QString FromPath(const std::string& path) {
    return QString::fromStdString(path);
}

QFont ToFont(const forms::Font& font) {
    QFont result;
    result.setFamilies({QString::fromStdString(font.name), QStringLiteral("DejaVu Sans")});
    result.setPixelSize(qRound(font.size * kPixelsPerPoint));
    return result;
}

QRect ToRect(const forms::Bounds& bounds, double scale) {
    const int step = GridStep(scale);
    const auto edge = [step](forms::Twips position) {
        return (forms::ToPixels(position) + step / 2) / step * step;
    };
    const QPoint corner(edge(bounds.left), edge(bounds.top));
    const QPoint end(edge(bounds.left + bounds.width), edge(bounds.top + bounds.height));
    return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

QRect ToRect(const forms::PixelRect& area) {
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

QColor BorderColor(const QPalette& palette) {
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.25F);
    return color;
}

forms::Color ToColor(const QColor& color) {
    return forms::Rgb(color.red(), color.green(), color.blue());
}

QColor ToQColor(forms::Color color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

}  // namespace halvenmoor::qt
