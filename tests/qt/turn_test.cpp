#include "window_fixture.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QTextDocumentFragment>

namespace halvenmoor::qt {
namespace {

TEST_F(Window, ToolTipShowsAsPlainText) {
    form.picture.SetToolTip("<b>3</b> & Datei(s)");
    desktop.Yield();
    const QWidget& picture = Find("picture");
    EXPECT_EQ(QTextDocumentFragment::fromHtml(picture.toolTip()).toPlainText(), "<b>3</b> & Datei(s)");
    EXPECT_EQ(picture.accessibleDescription(), "<b>3</b> & Datei(s)");
    form.picture.SetToolTip("");
    desktop.Yield();
    EXPECT_EQ(picture.toolTip(), "") << "an empty one must not pop up";
    EXPECT_EQ(picture.accessibleDescription(), "");
}

TEST_F(Window, LoopOfTurnsHearsTheUserAndShowsItsState) {
    auto& button = Find<QPushButton>("first");
    bool stopped = false;
    form.first.OnClick = [&] { stopped = true; };
    QTimer::singleShot(0, &button, [&button] { QTest::mouseClick(&button, Qt::LeftButton); });
    form.check.SetCaption("running");
    while (!stopped) desktop.Turn();
    EXPECT_EQ(Find<QAbstractButton>("check").text(), "running");
}

}  // namespace
}  // namespace halvenmoor::qt
