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

    bool HasFile(const std::string& entry) { return memory.Has("/p/demo/asc_demo/" + entry + ".asc"); }
    QListView& List() { return dynamic_cast<QListView&>(WidgetOf(Form().MainList)); }

    /// Windows become active one after the other.
    static bool GetsFocus(const QWidget& widget) {
        return QTest::qWaitFor([&widget] { return QApplication::focusWidget() == &widget; });
    }

    /// Scrolls the list, clicks the row and the button, and acts in the dialog, which closes in any case.
    void Rename(int topRow, int row, const std::function<void(QWidget& dialog, QLineEdit& field)>& action) {
        List().verticalScrollBar()->setValue(topRow);
        ClickRow(Form().MainList, row);
        const WhenShown meeting("frmRename", [&action](QWidget& dialog) {
            auto& field = *dialog.findChild<QLineEdit*>("TextFileName");
            EXPECT_TRUE(GetsFocus(field));
            action(dialog, field);
            if (dialog.isVisible()) QTest::keyClick(&dialog, Qt::Key_Escape);
            EXPECT_FALSE(dialog.isVisible());
        });
        Click(Form().ButtonRenameFile);
        Main().activateWindow();  // as a window manager does
        EXPECT_TRUE(GetsFocus(List()));
    }
    void ExpectCurrentRowShows() {
        EXPECT_TRUE(List().viewport()->rect().contains(List().visualRect(List().currentIndex())));
    }
};

TEST_F(RenameWindow, OpensBesideTheRowOfAScrolledList) {
    const auto expectBeside = [this](int topRow, int row) {
        Rename(topRow, row, [&](QWidget& dialog, QLineEdit& field) {
            const int rowMiddle = List().viewport()->mapToGlobal(CentreOfRow(List(), row)).y();
            const int listLeft = List().mapToGlobal(QPoint(0, 0)).x();
            EXPECT_LT(dialog.frameGeometry().right(), listLeft);
            EXPECT_GE(dialog.frameGeometry().right(), listLeft - 10);
            const int fieldMiddle = field.mapToGlobal(field.rect().center()).y();
            EXPECT_NEAR(fieldMiddle, rowMiddle, 4) << "row " << row << " from " << topRow;
        });
    };
    expectBeside(0, 0);
    expectBeside(0, 20);
    expectBeside(30, 31);
    expectBeside(30, 60);
    expectBeside(1000, 79);
}

TEST_F(RenameWindow, RenamesByKeysAlone) {
    Rename(40, 45, [](QWidget& dialog, QLineEdit& field) {
        EXPECT_EQ(dialog.windowTitle(), "Rename File");
        EXPECT_EQ(field.selectedText(), "camera 55");
        QTest::keyClicks(&field, "auto");
        EXPECT_EQ(field.text(), "auto") << "typing replaces the name";
        QTest::keyClick(&field, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(HasFile("auto"));
    EXPECT_EQ(List().currentIndex().data().toString(), "auto");
    EXPECT_EQ(List().selectionModel()->selectedRows(), QModelIndexList{List().currentIndex()});
    ExpectCurrentRowShows();
    EXPECT_EQ(List().verticalScrollBar()->value(), 0) << "the new place is far above";
}

}  // namespace
}  // namespace halvenmoor::qt
