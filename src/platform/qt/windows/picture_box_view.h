#pragma once

#include "forms/controls.h"
#include "platform/qt/windows/canvas.h"
#include "platform/qt/windows/control_view.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace halvenmoor::qt {

/// Shows a picture of the program or, once it was drawn on, the image of its canvas.
class PictureBoxWidget : public QWidget {
public:
    explicit PictureBoxWidget(QWidget* parent) : QWidget(parent) {}

    /// A picture by its name, without a folder or an extension.
    void Load(const QString& name) { name_ = name; }
    void SetBordered(bool bordered);
    /// The widget does not own the canvas.
    void SetCanvas(ImageCanvas& canvas) { canvas_ = &canvas; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Makes the picture fit the place, given in pixels of the screen.
    void FitPicture(const QSize& size);

    QString name_;
    QPixmap picture_;
    ImageCanvas* canvas_ = nullptr;
    bool bordered_ = false;
};

class PictureBoxView : public ViewOf<forms::PictureBox, PictureBoxWidget> {
public:
    PictureBoxView(forms::PictureBox& box, QWidget& parent, const text::CodePage& page);

    forms::Canvas& Canvas();

private:
    void ShowState() override { Widget().SetBordered(Control().Bordered()); }

    ImageCanvas canvas_;
};

/// The program's icon.
QIcon ProgramIcon();

}  // namespace halvenmoor::qt
