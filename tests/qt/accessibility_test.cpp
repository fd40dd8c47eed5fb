// What screen readers are told of the windows, and how the keyboard does all that a mouse can.

#include "all_windows.h"
#include "batch/user_actions.h"

#include <QAccessible>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <map>

namespace halvenmoor::qt {
namespace {

QString NameOf(const forms::Control& control) {
    return QAccessible::queryAccessibleInterface(&WidgetOf(control))->text(QAccessible::Name);
}

/// What the control is for, when its name is its choice.
QString LabelOf(const forms::Control& control) {
    for (const auto& [label, relation] :
         QAccessible::queryAccessibleInterface(&WidgetOf(control))->relations(QAccessible::Label)) {
        if (relation.testFlag(QAccessible::Label)) return label->text(QAccessible::Name);
    }
    return {};
}

const std::map<forms::ControlKind, QAccessible::Role> kRoles{
    {forms::ControlKind::Label, QAccessible::StaticText},
    {forms::ControlKind::Frame, QAccessible::Grouping},
    {forms::ControlKind::CommandButton, QAccessible::Button},
    {forms::ControlKind::CheckBox, QAccessible::CheckBox},
    {forms::ControlKind::OptionButton, QAccessible::RadioButton},
    {forms::ControlKind::ListBox, QAccessible::List},
    {forms::ControlKind::ComboBox, QAccessible::ComboBox},
    {forms::ControlKind::PictureBox, QAccessible::Graphic},
    {forms::ControlKind::TextBox, QAccessible::EditableText}};

void ExpectAllNamed(forms::Form& form) {
    form.Owner().Yield();
    const auto* const window = QAccessible::queryAccessibleInterface(&WidgetOf(form));
    const bool isMain = form.AtDesign().name == "frmMain";
    EXPECT_EQ(window->role(), isMain ? QAccessible::Window : QAccessible::Dialog);
    EXPECT_EQ(window->text(QAccessible::Name).toStdString(), form.Caption());
    EXPECT_FALSE(WidgetOf(form).windowIcon().isNull()) << "the task bar shows it";
    for (const forms::Control* control : form.Controls()) {
        if (!control->Visible()) continue;
        const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&WidgetOf(*control));
        ASSERT_NE(told, nullptr) << control->Name();
        EXPECT_EQ(told->role(), kRoles.at(control->Kind())) << control->Name();
        const bool isNamedByChoice = control->Kind() == forms::ControlKind::ComboBox;
        const QString name = isNamedByChoice ? LabelOf(*control) : told->text(QAccessible::Name);
        EXPECT_EQ(name.toStdString(), control->AccessibleName());
        EXPECT_FALSE(control->AccessibleName().empty()) << control->Name();
    }
}

TEST_F(AllWindows, TellScreenReadersWhatEachControlIs) {
    for (const char* language : {"English", "Deutsch"}) {
        SCOPED_TRACE(language);
        EXPECT_TRUE(UserChoosesLanguage(Form(), language));
        LookAtAllWindows(ExpectAllNamed);
    }
    EXPECT_EQ(NameOf(Form().TypeList[4]), "Blitzer Typ \"4\" (Abschnittskontrolle)");
    EXPECT_EQ(NameOf(Form().MainList), "Blitzerdateien (Ohne Typ)");
    EXPECT_EQ(Form().CheckAuto[4].ToolTip(), "Dateien zuordnen → Blitzer Typ \"4\" (Abschnittskontrolle)");
    EXPECT_EQ(NameOf(Form().ButtonAdd[5]),
              "Blitzerdateien (Ohne Typ) \u2192 Blitzer Typ \"5\" (Mobiler Blitzer)");
    EXPECT_EQ(NameOf(Form().ButtonRemove[1]),
              "Blitzer Typ \"1\" (Fester Blitzer) \u2192 Blitzerdateien (Ohne Typ)");
    EXPECT_EQ(LabelOf(Form().LanguageList), "Sprache wählen");
    EXPECT_EQ(QFileDialog::tr("Look in:"), "Suchen in:") << "Qt's own words";
}

/// Tab goes from each control to the next one in the order, which shows that it has the focus.
void ExpectFocusSeenInOrder(forms::Form& form) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&WidgetOf(form)));
    std::vector<forms::Control*> stops;
    for (forms::Control* const control : form.InTabOrder()) {
        const auto* const option = dynamic_cast<forms::OptionButton*>(control);
        if (control->CanTakeFocus() && (option == nullptr || option->Value())) stops.push_back(control);
    }
    if (stops.empty()) return;
    stops.back()->SetFocus();
    form.Owner().Yield();
    for (const forms::Control* control : stops) {
        const QImage before = WidgetOf(*control).grab().toImage();
        QTest::keyClick(&WidgetOf(form), Qt::Key_Tab);
        ASSERT_EQ(form.ActiveControl(), control) << control->Name();
        EXPECT_TRUE(stops.size() == 1 || WidgetOf(*control).grab().toImage() != before) << control->Name();
    }
}

TEST_F(AllWindows, ShowWhereTheFocusIs) {
    LookAtAllWindows(ExpectFocusSeenInOrder);
}

/// The main window with two camera files, of which no name tells the type.
class Keyboard : public ProgramWindows {
protected:
    Keyboard() {
        memory.Put("/p/Settings.ini", "[Type1]\nfixed*\n");
        AddDemoFile("One 50", "1.5, 2.5, \"one\"\n");
        AddDemoFile("Two 70", "3.5, 4.5, \"two\"\n");
        memory.AddFolder("/p/demo/txt_demo");
        StartActive();
    }

    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    }
    void TabTo(const forms::Control& control) {
        for (int i = 0; i < 60 && Form().ActiveControl() != &control; ++i) Press(Qt::Key_Tab);
        ASSERT_EQ(Form().ActiveControl(), &control) << control.Name();
    }
};

TEST_F(Keyboard, DoesTheWholeJob) {
    TabTo(Form().MainList);
    Press(Qt::Key_Space);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Form().MainList.SelCount(), 2);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "One 50\nTwo 70");
    Press(Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(Form().TypeList[2].ListCount(), 2);

    TabTo(Form().TypeList[2]);
    Press(Qt::Key_End);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Form().MainList.List(0), "Two 70");

    Press(Qt::Key_M, Qt::AltModifier);
    {
        const WhenShown rename("frmRename", [](QWidget& window) {
            QKeyEvent stillDown(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
            QApplication::sendEvent(window.focusWidget(), &stillDown);
            EXPECT_TRUE(window.isVisible());
            QTest::keyClicks(window.focusWidget(), "Two 50");
            QTest::keyClick(window.focusWidget(), Qt::Key_Return);
        });
        Press(Qt::Key_Enter, Qt::KeypadModifier);
    }
    EXPECT_EQ(Form().MainList.List(0), "Two 50");
    Main().activateWindow();  // what a window manager does
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Main()));

    const WhenShown results("frmResults", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    TabTo(Form().ButtonExportCameras);
    Press(Qt::Key_Space);
    EXPECT_EQ(memory.Text("/p/demo/txt_demo/SpeedCamText.txt"),
              "X,Y,TYPE,SPEED,DirType,Direction\r\n1.5,2.5,2,50,0,0\r\n");
}

}  // namespace
}  // namespace halvenmoor::qt
