// What a start of the program is measured against: the least that a program with a window does, one label in
// the font of the program's windows; or, to see what Qt takes of the rest, a window as large as the main
// window with about as many controls of the same kinds. It ends when the window is painted, or stays:
//
//     minimal_window label|controls [stay]

#include "first_paint.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>
#include <string_view>

namespace {

template <class Control>
void AddColumn(QWidget& window, int count, int left) {
    for (int i = 0; i < count; ++i) {
        auto* const control = new Control("Halvenmoor", &window);
        control->setGeometry(left, 320 + 24 * i, 90, 24);
    }
}

void AddLists(QWidget& window) {
    QStringList rows;
    for (int i = 0; i < 22; ++i) rows << QStringLiteral("Fixed %1 mph").arg(i);
    for (int i = 0; i < 6; ++i) {
        auto* const list = new QListView(&window);
        list->setModel(new QStringListModel(i == 0 ? rows : QStringList(), list));
        list->setGeometry(10 + 130 * i, 10, 120, 300);
    }
}

void AddControls(QWidget& window) {
    window.setFixedSize(793, 600);
    AddLists(window);
    AddColumn<QPushButton>(window, 10, 10);
    AddColumn<QLabel>(window, 8, 110);
    AddColumn<QCheckBox>(window, 7, 210);
    AddColumn<QRadioButton>(window, 3, 310);
    AddColumn<QGroupBox>(window, 2, 410);
    auto* const languages = new QComboBox(&window);
    languages->setEditable(true);
    languages->setGeometry(510, 320, 120, 24);
}

}  // namespace

int main(int count, char** arguments) {
    QApplication application(count, arguments);
    const halvenmoor::FirstPaint firstPaint(count > 2);
    QFont font("Verdana");
    font.setPixelSize(11);
    QLabel window("Halvenmoor");
    window.setFont(font);
    if (count > 1 && arguments[1] == std::string_view("controls")) AddControls(window);
    window.show();
    return QApplication::exec();
}
