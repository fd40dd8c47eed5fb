#include "platform/qt/windows/canvas.h"
#include "platform/qt/windows/contrast.h"
#include "window_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace halvenmoor::qt {
namespace {

TEST_F(Window, ForwardsClicksAndKeys) {
    Click("first");
    Click("check");
    Click("optionB");
    EXPECT_EQ(Heard(), (Words{"first", "check", "optionB"}));
    EXPECT_TRUE(form.check.Value() && form.optionB.Value());
    EXPECT_FALSE(Find<QRadioButton>("optionA").isChecked());

    QTest::keyClick(&Find("check"), Qt::Key_Space);
    QTest::keyClick(&Find("first"), Qt::Key_Return);
    QTest::keyClick(&Find("text"), Qt::Key_Escape);
    EXPECT_EQ(Heard(), (Words{"check", "first", "cancel"}));
    QTest::keyClicks(&Find("text"), "ok");
    EXPECT_EQ(form.text.Text(), "ok");
}

TEST_F(Window, ShowsWhatTheProgramChangesWithoutAnEcho) {
    form.check.SetValue(true);
    form.optionB.SetValue(true);
    form.optionB.SetValue(false);
    form.combo.AddItem("two");
    form.combo.SetListIndex(0);
    form.text.SetText("typed");
    form.label.SetVisible(false);
    form.first.SetEnabled(false);
    form.SetCaption("Other [*]");
    form.SetBusy(true);
    Heard();
    EXPECT_FALSE(Find<QCheckBox>("check").isChecked()) << "the view waits for the end of the event";
    desktop.Yield();
    EXPECT_TRUE(Find<QCheckBox>("check").isChecked());
    EXPECT_FALSE(Find<QRadioButton>("optionA").isChecked() || Find<QRadioButton>("optionB").isChecked());
    EXPECT_EQ(Find<QComboBox>("combo").currentText(), "two");
    EXPECT_EQ(Find<QLineEdit>("text").text(), "typed");
    EXPECT_TRUE(Find("label").isHidden());
    EXPECT_FALSE(Find("first").isEnabled());
    EXPECT_EQ(Root().windowTitle(), "Other [*][*]");
    EXPECT_EQ(Root().cursor().shape(), Qt::BusyCursor);
    EXPECT_EQ(Heard(), Words{});
}

TEST_F(Window, ShowsPlainText) {
    EXPECT_EQ(Find<QLabel>("label").textFormat(), Qt::PlainText);
    EXPECT_EQ(Find<QLabel>("label").text(), "<b>a</b> & b");
    EXPECT_EQ(Find<QGroupBox>("frame").title(), "A && B");
    EXPECT_TRUE(Find<QPushButton>("first").shortcut().isEmpty());
    form.left.AddItems({"Wei\xdf", "two\nlines"});
    desktop.Yield();
    const QAbstractItemModel& rows = *Find<QListView>("left").model();
    EXPECT_EQ(rows.index(0, 0).data().toString(), "Wei\u00df");
    EXPECT_EQ(rows.index(1, 0).data().toString(), "two\u240alines");
}

TEST_F(Window, FramesOfBoxesThatAreOffStandOutOfADarkWindow) {
    for (const QColor& window : {QColor(18, 18, 18), QColor(53, 53, 53), QColor(90, 60, 30)}) {
        Root().setPalette(QPalette(window, window));
        for (const char* name : {"check", "optionB"}) {
            const QImage image = Find(name).grab().toImage();
            const int middle = image.height() / 2;
            EXPECT_EQ(image.pixelColor(image.width() - 1, middle), window);
            double contrast = 1;
            for (int x = 0; x < 5; ++x)
                contrast = std::max(contrast, Contrast(image.pixelColor(x, middle), window));
            EXPECT_GE(contrast, 3) << name << " on " << window.name().toStdString();
        }
    }
}

TEST_F(Window, PlacesControlsByTwips) {
    EXPECT_EQ(Root().size(), QSize(400, 400));
    EXPECT_EQ(Find("left").geometry(), QRect(0, 110, 160, 100));
    EXPECT_EQ(Find("label").parentWidget(), &Find("frame"));
    EXPECT_EQ(Find("first").font().pixelSize(), 11);
    EXPECT_FALSE(Root().windowFlags() & Qt::WindowMaximizeButtonHint);
    form.MoveTo({1500, 3000});
    desktop.Yield();
    EXPECT_EQ(Root().pos(), QPoint(100, 200));
    Root().move(10, 20);
    EXPECT_EQ(form.Position().left, 150);
    EXPECT_EQ(form.Position().top, 300);
}

TEST_F(Window, KeepsTheFocusWhereTheFormHasIt) {
    EXPECT_EQ(QApplication::focusWidget(), &Find("first"));
    Click("left");
    EXPECT_EQ(form.ActiveControl(), &form.left);

    form.left.SetEnabled(false);
    desktop.Yield();
    EXPECT_EQ(form.ActiveControl(), &form.right);
    EXPECT_EQ(QApplication::focusWidget(), &Find("right"));

    form.combo.OnGotFocus = [this] { form.first.SetFocus(); };
    Find("combo").setFocus();
    EXPECT_EQ(form.ActiveControl(), &form.first);
    EXPECT_EQ(QApplication::focusWidget(), &Find("first"));
}

TEST_F(Window, ComboNeitherCompletesNorAddsWhatIsTypedNorHeedsTheWheel) {
    form.combo.OnChange = nullptr;
    form.combo.AddItem("two");
    desktop.Yield();
    EXPECT_EQ(Find<QComboBox>("combo").maxVisibleItems(), 1) << "all";
    Find<QComboBox>("combo").setEditText("");
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Find("combo"), &wheel);
    QTest::keyClick(&Find("combo"), Qt::Key_T);
    EXPECT_EQ(Find<QComboBox>("combo").currentText(), "t");
    QTest::keyClick(&Find("combo"), Qt::Key_Return);
    EXPECT_EQ(Find<QComboBox>("combo").count(), 1);
}

TEST_F(Window, DrawsOnTheCanvasAtOnce) {
    forms::Canvas& canvas = *form.picture.GetCanvas();
    const forms::PixelRect all = canvas.ClientRect();
    EXPECT_EQ(all.right, 98);
    EXPECT_EQ(all.bottom, 48);
    form.picture.SetBordered(false);
    desktop.Yield();
    EXPECT_EQ(form.picture.GetCanvas()->ClientRect().right, 100);

    constexpr forms::Color kBlue = forms::Rgb(0, 0, 255);
    canvas.FillRect({0, 0, 100, 50}, forms::Rgb(255, 0, 0));
    canvas.SetClip({10, 10, 20, 20});
    canvas.FillRect({0, 0, 100, 50}, kBlue);
    canvas.ClearClip();
    canvas.DrawLine({40, 5}, {30, 5}, kBlue);
    canvas.DrawLine({60, 5}, {60, 9}, kBlue);
    canvas.DrawText("MMMM", {60, 20, 100, 40}, {}, kBlue);
    canvas.Refresh();

    const QImage image = Find("picture").grab().toImage();
    // A line leaves out its end.
    for (const QPoint point : {QPoint(10, 10), {19, 19}, {40, 5}, {31, 5}, {60, 8}})
        EXPECT_EQ(image.pixelColor(point), QColor(Qt::blue)) << point.x();
    for (const QPoint point : {QPoint(0, 0), {20, 20}, {30, 5}, {60, 9}, {62, 22}})
        EXPECT_EQ(image.pixelColor(point), QColor(Qt::red)) << point.x();
    EXPECT_NE(image.copy(60, 20, 40, 20), image.copy(60, 21, 40, 1).scaled(40, 20)) << "the text shows";
}

TEST_F(Window, PaintsOnlyADrawingThatDiffers) {
    struct : QWidget {
        int paints = 0;
        void paintEvent(QPaintEvent*) override { ++paints; }
    } paper;
    paper.setParent(&Root());
    paper.show();
    ImageCanvas canvas(paper, locale.CodePage());
    const auto paintsFor = [&](forms::Color color) {
        canvas.FillRect({0, 0, 5, 5}, color);
        canvas.Refresh();
        return std::exchange(paper.paints, 0);
    };
    EXPECT_EQ((std::vector{paintsFor(1), paintsFor(1), paintsFor(2)}), (std::vector{1, 0, 1}));
    paper.resize(60, 40);
    EXPECT_EQ(paintsFor(2), 1);
}

TEST_F(Window, GivesAModalFormAllEvents) {
    form.left.AddItems({"a", "b"});
    SampleForm dialog(desktop);
    dialog.cancel.OnClick = [&] { dialog.Unload(); };
    dialog.script = [&] {
        QWidget& shown = WidgetOf(dialog);
        EXPECT_EQ(dialog.heard, Words{"activate"});
        EXPECT_EQ(QApplication::activeModalWidget(), &shown);
        EXPECT_EQ(shown.windowHandle()->transientParent(), Root().windowHandle());
        Click("check");
        Root().close();
        EXPECT_FALSE(Find<QCheckBox>("check").isChecked()) << "the refused click is undone";
        Find<QListView>("left").selectAll();
        QTest::keyClick(&Find("left"), Qt::Key_Shift);
        EXPECT_FALSE(Find<QListView>("left").selectionModel()->hasSelection());
        QTest::keyClick(&shown, Qt::Key_Escape);
    };
    desktop.ShowModal(dialog);
    EXPECT_EQ(Heard(), Words{"activate"});
}

TEST_F(Window, ClosesOnlyWhereThereIsACloseBox) {
    SampleForm dialog(desktop, false);
    dialog.script = [&] {
        QWidget& shown = WidgetOf(dialog);
        EXPECT_FALSE(shown.windowFlags() & Qt::WindowCloseButtonHint);
        shown.close();
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_TRUE(shown.isVisible());
        dialog.Unload();
    };
    desktop.ShowModal(dialog);
    QTimer::singleShot(0, [&] { Root().close(); });
    toolkit.Run(desktop);
    EXPECT_TRUE(desktop.Ended());
}

TEST_F(Window, LoopOfYieldsHearsTheUserAndShowsItsState) {
    bool stopped = false;
    form.first.OnClick = [&] { stopped = true; };
    QTimer::singleShot(0, &Root(), [this] { Click("first"); });
    form.check.SetCaption("running");
    while (!stopped) desktop.YieldIfDue();
    EXPECT_EQ(Find<QAbstractButton>("check").text(), "running");
}

}  // namespace
}  // namespace halvenmoor::qt
