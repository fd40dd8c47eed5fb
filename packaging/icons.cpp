// Draws a picture as icons of several sizes in pixels, FOLDER/16x16/apps/NAME.png and so on:
//
//     icons PICTURE.svg FOLDER NAME SIZE...

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

QImage Draw(QSvgRenderer& picture, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter);
    return image;
}

bool Save(const QImage& image, const QString& file) {
    return QDir().mkpath(QFileInfo(file).path()) && image.save(file);
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 5) {
        std::fputs("usage: icons PICTURE.svg FOLDER NAME SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer picture(QString::fromLocal8Bit(arguments[1]));
    for (int i = 4; i < count; ++i) {
        const QString size = QString::fromLocal8Bit(arguments[i]);
        const QString file =
            QStringLiteral("%1/%2x%2/apps/%3.png")
                .arg(QString::fromLocal8Bit(arguments[2]), size, QString::fromLocal8Bit(arguments[3]));
        if (!picture.isValid() || !Save(Draw(picture, size.toInt()), file)) {
            std::fprintf(stderr, "icons: cannot make %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
