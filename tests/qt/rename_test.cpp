#include "program_fixture.h"

#include <QLineEdit>
#include <QScrollBar>

namespace halvenmoor::qt {
namespace {

/// The main window with 80 files in its list: "camera 10" to "camera 89".
class RenameWindow : public ProgramWindows {
protected:
    RenameWindow() {
        for (int i = 10; i < 90; ++i) AddDemoFile("camera " + std::to_string(i), "");
        StartActive();
    }

    QListView& List() { return dynamic_cast<QListView&>(WidgetOf(Form().MainList)); }

    /// Windows become active one after the other.
    static bool GetsFocus(const QWidget& widget) {
        return QTest::qWaitFor([&widget] { return QApplication::focusWidget() == &widget; });
    }
};

TEST_F(RenameWindow, OpensBesideTheRowOfAScrolledList) {
    const std::pair<int, int> cases[] = {{0, 0}, {30, 60}, {1000, 79}};  // the top row, the row
    for (const auto& [topRow, row] : cases) {
        List().verticalScrollBar()->setValue(topRow);
        ClickRow(Form().MainList, row);
        const WhenShown rename("frmRename", [&, row = row](QWidget& dialog) {
            auto& field = *dialog.findChild<QLineEdit*>("TextFileName");
            EXPECT_TRUE(GetsFocus(field));
            const int listLeft = List().mapToGlobal(QPoint(0, 0)).x();
            EXPECT_LT(dialog.frameGeometry().right(), listLeft);
            EXPECT_GE(dialog.frameGeometry().right(), listLeft - 10);
            const int rowMiddle = List().viewport()->mapToGlobal(CentreOfRow(List(), row)).y();
            EXPECT_NEAR(field.mapToGlobal(field.rect().center()).y(), rowMiddle, 4) << row;
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        Click(Form().ButtonRenameFile);
        Main().activateWindow();  // as a window manager does
        EXPECT_TRUE(GetsFocus(List()));
    }
}

}  // namespace
}  // namespace halvenmoor::qt
