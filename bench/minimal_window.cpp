// The least that a program with a window does, to measure a start against: one label in the font of the
// program's windows. It ends when the label is painted, or stays:
//
//     minimal_window [stay]

#include "first_paint.h"

#include <QApplication>
#include <QLabel>

int main(int count, char** arguments) {
    QApplication application(count, arguments);
    const halvenmoor::FirstPaint firstPaint(count > 1);
    QLabel label("Halvenmoor");
    QFont font("Verdana");
    font.setPixelSize(11);
    label.setFont(font);
    label.show();
    return QApplication::exec();
}
