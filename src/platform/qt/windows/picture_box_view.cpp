#include "platform/qt/windows/picture_box_view.h"

#include <QImageReader>
#include <QPainter>

namespace halvenmoor::qt {

namespace {

// How many times as large as at scale 1 the build renders each picture.
constexpr int kScales[] = {1, 2, 4};

QPixmap LoadPicture(const QString& name, int scale) {
    QImageReader reader(QStringLiteral(":/pictures/%1-%2.png").arg(name).arg(scale), "PNG");
    reader.setAutoDetectImageFormat(false);  // it would load the plugins of all formats
    return QPixmap::fromImageReader(&reader);
}

}  // namespace

void PictureBoxWidget::SetBordered(bool bordered) {
    if (bordered == bordered_) return;
    bordered_ = bordered;
    update();
}

void PictureBoxWidget::paintEvent(QPaintEvent*) {
    const int border = bordered_ ? 1 : 0;
    const QRect inside = rect().adjusted(border, border, -border, -border);
    QPainter painter(this);
    if (canvas_ != nullptr && !canvas_->Image().isNull()) {
        painter.drawImage(inside, canvas_->Image());
    } else if (!name_.isEmpty()) {
        FitPicture((QSizeF(inside.size()) * devicePixelRatioF()).toSize());
        painter.drawPixmap(inside, picture_);
    }
    if (!bordered_) return;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PictureBoxWidget::FitPicture(const QSize& size) {
    if (picture_.size() == size) return;
    for (const int scale : kScales) {
        picture_ = LoadPicture(name_, scale);
        if (picture_.width() >= size.width()) break;  // to make it smaller leaves it crisp
    }
    picture_ = picture_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

PictureBoxView::PictureBoxView(forms::PictureBox& box, QWidget& parent, const text::CodePage& page)
    : ViewOf(box, parent, page), canvas_(Widget(), page) {
    Widget().SetCanvas(canvas_);
    const std::string& picture = box.AtDesign().picture;
    if (!picture.empty()) Widget().Load(QString::fromStdString(picture));
}

forms::Canvas& PictureBoxView::Canvas() {
    canvas_.SetBorder(Control().Bordered() ? 1 : 0);
    return canvas_;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int scale : kScales) icon.addPixmap(LoadPicture(QStringLiteral("halvenmoor"), scale));
    return icon;
}

}  // namespace halvenmoor::qt
