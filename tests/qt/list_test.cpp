#include "platform/qt/windows/list_box_view.h"
#include "window_fixture.h"

#include <QDropEvent>
#include <QScrollBar>

namespace halvenmoor::qt {
namespace {

class Lists : public Window {
protected:
    Lists() {
        form.left.AddItems({"a", "b", "c", "d", "e"});
        form.right.AddItems({"x", "y"});
        form.right.OnDragDrop = [this] { form.heard.push_back("drop"); };
        form.left.OnCompleteDrag = [this] { form.heard.push_back("complete"); };
        desktop.Yield();
    }

    QListView& Left() { return Find<QListView>("left"); }
    void ClickRow(int row, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(Left().viewport(), Qt::LeftButton, keys, CentreOfRow(Left(), row));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers keys = {}) { QTest::keyClick(&Left(), key, keys); }
    std::string Selected() {
        std::string items;
        for (int i = 0; i < form.left.ListCount(); ++i) {
            if (form.left.Selected(i)) items += form.left.List(i);
        }
        return items;
    }
};

TEST_F(Lists, SelectWithMouseAndKeys) {
    ClickRow(1);
    EXPECT_EQ(Selected(), "b");
    EXPECT_EQ(Left().textElideMode(), Qt::ElideMiddle) << "the end of a name tells its speed";
    ClickRow(3, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "bcd");
    ClickRow(2, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "bd");
    EXPECT_EQ(form.left.ListIndex(), 2);
    EXPECT_EQ(Heard(), (Words{"left", "left", "left"})) << "one for each change";
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "abcde");
    Press(Qt::Key_End);
    EXPECT_EQ(Selected(), "e");
    EXPECT_EQ(Heard().size(), 2u);
    ClickRow(4);
    EXPECT_EQ(Heard(), Words{"left"}) << "a click that changes nothing counts";
    Press(Qt::Key_Down);
    EXPECT_EQ(Heard(), Words{}) << "a key that changes nothing does not";
    form.left.OnDoubleClick = [this] { form.heard.push_back("double"); };
    ClickRow(3);
    QTest::mouseDClick(Left().viewport(), Qt::LeftButton, {}, CentreOfRow(Left(), 3));
    QTest::mouseRelease(Left().viewport(), Qt::LeftButton, {}, CentreOfRow(Left(), 3));
    EXPECT_EQ(Heard(), (Words{"left", "left", "double"}));
}

TEST_F(Lists, FollowTheProgram) {
    ClickRow(1);
    ClickRow(3, Qt::ControlModifier);
    Heard();
    form.left.SetSelected(1, false);
    form.left.SetSelected(4, true);
    EXPECT_EQ(Heard().size(), 2u);
    form.left.AddItems({"0"});
    desktop.Yield();
    QStringList shown;
    for (const QModelIndex& index : Left().selectionModel()->selectedRows()) shown << index.data().toString();
    shown.sort();
    EXPECT_EQ(shown, (QStringList{"d", "e"}));
    EXPECT_EQ(Left().currentIndex().data().toString(), "e");
    EXPECT_EQ(Heard(), Words{}) << "no echo";
}

// Also run at scale 1.25, where a line may fall between two device pixels.
TEST_F(Lists, HaveABorderOnEachSide) {
    const QImage image = WidgetOf(form).grab().toImage();
    const double scale = image.devicePixelRatio();
    const QRect list = QRectF(QPointF(Left().pos()) * scale, QSizeF(Left().size()) * scale).toRect();
    const QColor background = WidgetOf(form).palette().color(QPalette::Window);
    for (const QPoint& point :
         {QPoint(list.left(), list.center().y()), QPoint(list.right(), list.center().y()),
          QPoint(list.center().x(), list.top()), QPoint(list.center().x(), list.bottom())}) {
        EXPECT_LT(image.pixelColor(point).lightness(), background.lightness() - 20)
            << point.x() << ' ' << point.y();
    }
}

bool DropOn(QWidget& target, const QMimeData& content) {
    QDragEnterEvent enter({10, 10}, Qt::MoveAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop({10, 10}, Qt::MoveAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
    return drop.isAccepted();
}

TEST_F(Lists, MoveItemsByDragging) {
    QWidget& target = *Find<QListView>("right").viewport();
    bool isTaken = false;
    form.left.OnStartDrag = [&] {
        form.heard.push_back("start");
        EXPECT_FALSE(DropOn(target, DraggedItems())) << "the drop mode is off";
        form.right.SetOLEDropMode(forms::ListBox::DropMode::Manual);
        isTaken = DropOn(target, DraggedItems());
    };
    form.right.OnDragDrop = [this] {
        form.heard.push_back("drop");
        form.right.AddItems({"b", "c"});
        form.left.RemoveItem(2);
        form.left.RemoveItem(1);
    };
    ClickRow(1);
    ClickRow(2, Qt::ShiftModifier);
    Heard();
    const QPoint from = CentreOfRow(Left(), 1);
    QTest::mousePress(Left().viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(Left().viewport(), from + QPoint(0, 5));
    QTest::mouseMove(Left().viewport(), from + QPoint(0, 40));
    QTest::mouseRelease(Left().viewport(), Qt::LeftButton, {}, from);
    // Without a display Qt cancels a drag at once, so its end comes by itself.
    EXPECT_EQ(Heard(), (Words{"start", "drop", "complete"}));
    EXPECT_TRUE(isTaken);
    EXPECT_EQ(form.right.ListCount(), 4);
    EXPECT_EQ(Left().model()->rowCount(), 3);
}

TEST_F(Lists, ShowAFrameWhileADragOverThemWouldBeTaken) {
    form.right.SetOLEDropMode(forms::ListBox::DropMode::Manual);
    QWidget& target = *Find<QListView>("right").viewport();
    const DraggedItems content;
    const auto picture = [&] { return Find("right").grab().toImage(); };
    const QImage before = picture();
    for (const bool isDropped : {false, true}) {
        QDragEnterEvent enter({10, 10}, Qt::MoveAction, &content, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        EXPECT_NE(picture(), before);
        QDragLeaveEvent leave;
        QDropEvent drop({10, 10}, Qt::MoveAction, &content, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, isDropped ? static_cast<QEvent*>(&drop) : &leave);
        EXPECT_EQ(picture(), before) << isDropped;
    }
}

TEST_F(Lists, TellWhichRowsShow) {
    for (int i = 10; i < 60; ++i) form.left.AddItems({std::to_string(i)});
    desktop.Yield();
    Left().verticalScrollBar()->setValue(30);
    EXPECT_EQ(form.left.TopIndex(), 30);
    EXPECT_EQ(form.left.RowHeight(), 15 * Left().visualRect(Left().model()->index(30, 0)).height());
}

TEST_F(Lists, RefuseDropsFromElsewhere) {
    form.right.SetOLEDropMode(forms::ListBox::DropMode::Manual);
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/tmp/x.txt")});
    EXPECT_FALSE(DropOn(*Find<QListView>("right").viewport(), files));
    EXPECT_EQ(Heard(), Words{});
}

}  // namespace
}  // namespace halvenmoor::qt
