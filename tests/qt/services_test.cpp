#include "platform/qt/services/application.h"
#include "platform/qt/services/browser.h"
#include "platform/qt/services/file_dialogs.h"
#include "platform/qt/services/instance_guard.h"
#include "platform/qt/services/message_box.h"
#include "platform/qt/services/program_info.h"
#include "platform/qt/services/theme.h"
#include "platform/qt/services/translation.h"
#include "platform/system/host_files.h"
#include "platform/system/instance_lock.h"
#include "tests/support/temporary_folder.h"
#include "window_fixture.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <QTextBrowser>
#include <algorithm>
#include <cmath>
#include <filesystem>

namespace halvenmoor::qt {
namespace {

using namespace std::string_literals;

/// Answers the next modal dialog of this kind; the dialog must close on it.
template <class Dialog, class Answer>
void WhenShown(const Answer& answer) {
    QTimer::singleShot(0, qApp, [answer] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        answer(*dialog);
    });
}

TEST_F(Window, ShowsMessagesAsTheyAre) {
    WhenShown<QMessageBox>([this](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), "<b>x</b>\n\ny          ");
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(box.parentWidget(), &Root());
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.close();
    });
    QtMessageBox().Show("<b>x</b>\r\n\r\ny          ", "Title");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(SafeApplication, TellsDesktopsTheNameOfItsEntry) {
    EXPECT_EQ(QGuiApplication::desktopFileName(), "org.halvenmoor.halvenmoor");
}

TEST(SafeApplication, TakesTheLargestQuarterThatFitsTheScreen) {
    EXPECT_EQ(FittedScale(1.5, {1920, 1080}), 1.5);
    EXPECT_EQ(FittedScale(1.5, {1366, 768}), 1.25);
    EXPECT_EQ(FittedScale(2, {1920, 1080}), 1.75);
    EXPECT_EQ(FittedScale(1.5, {800, 480}), 1);
    EXPECT_EQ(FittedScale(1, {800, 480}), 1);
}

TEST(QtBrowser, OpensTheFileWhateverItsName) {
    QTextBrowser desktop;
    QDesktopServices::setUrlHandler("file", &desktop, "setSource");
    const TemporaryFolder folder;
    folder.Put("a #1%20é.html", "words");
    QtBrowser().Open(folder.Path() + "/a #1%20é.html");
    QDesktopServices::unsetUrlHandler("file");
    EXPECT_EQ(desktop.toPlainText(), "words");
}

class Dialogs : public Window {
protected:
    Dialogs() : request{"Title", "Suggested", folder.Path(), "Text File (*.txt)|*.txt", "txt"} {}

    /// Types the name and accepts it; the answer is for the message that this brings up.
    void Type(QFileDialog& dialog, const QString& name,
              const std::function<void(QMessageBox&)>& answer = {}) {
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
        edit->setFocus();
        edit->setText(name);
        if (answer) WhenShown<QMessageBox>(answer);
        QTest::keyClick(edit, Qt::Key_Return);
    }

    TemporaryFolder folder;
    std::unique_ptr<system::PathFinder> finder = system::MakePathFinder(text::WindowsCodePage(1252));
    system::DiskHostFiles files{*finder};
    QtFileDialogs dialogs{files};
    platform::FileDialog request;
};

TEST_F(Dialogs, AskAboutTheFileThatIsWritten) {
    folder.Put("Old.txt", "");
    WhenShown<QFileDialog>([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Title");
        EXPECT_EQ(dialog.nameFilters(), QStringList{"Text File (*.txt)"});
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "Suggested");
        int questions = 0;
        for (const char* const name : {"Old", "OLD"}) {
            Type(dialog, name, [&questions](QMessageBox& box) {
                ++questions;
                EXPECT_TRUE(box.text().contains("Old.txt"));
                box.button(QMessageBox::No)->click();
            });
        }
        EXPECT_EQ(questions, 2);
        Type(dialog, "new");
    });
    EXPECT_EQ(dialogs.AskSavePath(request), folder / "new.txt");
}

TEST_F(Dialogs, OpenWhatExists) {
    folder.Put("there.txt", "");
    WhenShown<QFileDialog>([this](QFileDialog& dialog) { Type(dialog, "there"); });
    EXPECT_EQ(dialogs.AskOpenPath(request), folder / "there.txt");
    WhenShown<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.AskOpenPath(request), std::nullopt);
}

TEST(Translation, HasQtsWordsInTheLanguagesOfTheProgram) {
    Translation translation;
    std::vector<std::string> english;
    for (const auto& entry : std::filesystem::directory_iterator(HALVENMOOR_DATA "/lang")) {
        const std::string name = FromStandard(entry.path().stem());
        translation.SetLanguage(name);
        if (QFileDialog::tr("Look in:") == "Look in:") english.push_back(name);
    }
    std::sort(english.begin(), english.end());
    EXPECT_EQ(english, (std::vector<std::string>{"română", "slovenščina", "svenska", "ελληνικά"}));
    translation.SetLanguage("English");
    EXPECT_EQ(QFileDialog::tr("Look in:"), "Look in:");
}

struct Instance {
    explicit Instance(const TemporaryFolder& folder) : lock(system::MakeInstanceLock(folder.Path())) {}

    std::unique_ptr<platform::InstanceLock> lock;
    InstanceGuard guard{*lock};
};

TEST(InstanceGuard, LetsOneInstanceStayAndCallsItForward) {
    const TemporaryFolder folder;
    // As if a killed one had left them behind.
    for (const char* const name : {"halvenmoor.lock", "halvenmoor.socket"}) folder.Put(name, "");
    auto first = std::make_unique<Instance>(folder);
    Instance second(folder);
    ASSERT_TRUE(first->guard.IsFirst());
    EXPECT_FALSE(second.guard.IsFirst());

    std::vector<std::string> tokens;
    first->guard.OnRaise = [&tokens](const std::string& token) { tokens.push_back(token); };
    const std::string tooLong = "raise " + std::string(platform::InstanceLock::kMaxMessage, 'x');
    const auto sendStrangeOnes = [&] {
        for (const std::string& message : {"stop"s, "raise"s, ""s, "\0raise "s, tooLong})
            second.lock->Send(message);
    };
    sendStrangeOnes();
    qputenv("XDG_ACTIVATION_TOKEN", "token-1");
    second.guard.RaiseOther();
    qunsetenv("XDG_ACTIVATION_TOKEN");
    second.guard.RaiseOther();
    EXPECT_TRUE(QTest::qWaitFor([&tokens] { return tokens.size() == 2; }));
    EXPECT_EQ(tokens, (std::vector<std::string>{"token-1", ""}));

    first.reset();
    Instance(folder).guard.RaiseOther();
    EXPECT_TRUE(Instance(folder).guard.IsFirst()) << "a later start";
}

TEST_F(Window, IsRaisedAndRestored) {
    const TemporaryFolder folder;
    const auto lock = system::MakeInstanceLock(folder.Path());
    const auto secondLock = system::MakeInstanceLock(folder.Path());
    QtProgramInfo first(*lock, "");
    QtProgramInfo second(*secondLock, "");
    EXPECT_FALSE(first.PreviousInstance());
    EXPECT_TRUE(second.PreviousInstance());
    Root().setWindowState(Qt::WindowMinimized);
    second.ActivatePreviousInstance();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Root().isMinimized(); }));
    EXPECT_EQ(first.ProgramFolder(),
              QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString());
    EXPECT_EQ(first.Version().major, 3);
    EXPECT_GT(first.Screen().width, 0);
}

double Luminance(forms::Color color) {
    const auto linear = [color](int shift) {
        const double channel = ((color >> shift) & 255) / 255.0;
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(0) + 0.7152 * linear(8) + 0.0722 * linear(16);
}

TEST(Theme, KeepsBlackAndWhiteTextReadable) {
    const QPalette before = QApplication::palette();
    const QtTheme theme;
    for (const QColor& tone : {QColor(45, 45, 48), QColor(119, 119, 119), QColor(255, 220, 0)}) {
        QPalette palette(tone, tone);
        palette.setColor(QPalette::Highlight, tone);
        QApplication::setPalette(palette);
        const double face = Luminance(theme.SystemColor(forms::kButtonFaceNumber).value());
        const double highlight = Luminance(theme.SystemColor(forms::kHighlightNumber).value());
        EXPECT_GE((face + 0.05) / 0.05, 4.5) << tone.name().toStdString();
        EXPECT_GE(1.05 / (highlight + 0.05), 4.5) << tone.name().toStdString();
    }
    QApplication::setPalette(before);
    EXPECT_EQ(theme.SystemColor(31), std::nullopt);
    EXPECT_TRUE(theme.GroupBoxTextColor().has_value());
}

}  // namespace
}  // namespace halvenmoor::qt
