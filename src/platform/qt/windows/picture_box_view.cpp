#include "platform/qt/windows/picture_box_view.h"

#include <QPainter>

namespace halvenmoor::qt {

namespace {

QString PicturePath(const QString& name) {
    return QStringLiteral(":/pictures/%1.png").arg(name);
}

}  // namespace

void PictureBoxWidget::Load(const QString& name) {
    picture_ = QIcon(PicturePath(name));  // an icon is scaled smoothly and keeps its shape
}

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
    } else {
        picture_.paint(&painter, inside);
    }
    if (!bordered_) return;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
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
    for (const int size : {16, 32, 64}) {
        icon.addFile(PicturePath(QStringLiteral("halvenmoor-%1").arg(size)), QSize(size, size));
    }
    return icon;
}

}  // namespace halvenmoor::qt
