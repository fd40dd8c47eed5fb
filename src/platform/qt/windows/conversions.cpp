#include "platform/qt/windows/conversions.h"

#include "base/text/decode.h"

namespace halvenmoor::qt {

namespace {

// Unicode has a visible sign for each control character.
constexpr char16_t kFirstControlSign = 0x2400;

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

QFont ToFont(const forms::Font& font) {
    QFont result;
    result.setFamilies({QString::fromStdString(font.name), QStringLiteral("DejaVu Sans")});
    result.setPixelSize(qRound(font.size * kPixelsPerPoint));
    return result;
}

QRect ToRect(const forms::Bounds& bounds) {
    return {forms::ToPixels(bounds.left), forms::ToPixels(bounds.top), forms::ToPixels(bounds.width),
            forms::ToPixels(bounds.height)};
}

QRect ToRect(const forms::PixelRect& area) {
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

forms::Color ToColor(const QColor& color) {
    return forms::Rgb(color.red(), color.green(), color.blue());
}

QColor ToQColor(forms::Color color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

}  // namespace halvenmoor::qt
