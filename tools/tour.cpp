// A tour of the real windows without a display: it uses them as a user would, on a copy of a program folder
// with options of its own, shows what came out, and leaves a picture of each window.
//
//     tour PROGRAM_FOLDER OUTPUT_FOLDER
//     tour --display        only tells, by its exit status, whether a display answers

#include "catalogue/frmMain.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/services/program_info.h"
#include "platform/system/clock.h"
#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/instance_lock.h"
#include "platform/system/locale.h"
#include "platform/system/path_finder.h"
#include "platform/system/settings_file.h"
#include "program.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <set>
#include <string>
#include <string_view>

using namespace halvenmoor;
namespace fs = std::filesystem;

namespace {

/// What a user does with the widgets of the program, found by their names.
class Visitor {
public:
    explicit Visitor(fs::path pictures) : pictures_(std::move(pictures)) {}

    void Say(const std::string& words) { std::cout << "- " << words << std::endl; }

    template <class Widget = QWidget>
    Widget& Find(const QString& window, const QString& control) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() != window || !top->isVisible()) continue;
            if (auto* widget = top->findChild<Widget*>(control)) return *widget;
        }
        throw std::runtime_error("no " + (window + "." + control).toStdString() + " to be seen");
    }

    void Click(const QString& window, const QString& control) {
        QTest::mouseClick(&Find(window, control), Qt::LeftButton);
    }

    void ChooseLanguage(const QString& language) {
        auto& list = Find<QComboBox>("frmMain", "LanguageList");
        list.setFocus();
        for (int i = 0; i < list.count() && list.currentText() != language; ++i) {
            QTest::keyClick(&list, list.findText(language) > list.currentIndex() ? Qt::Key_Down : Qt::Key_Up);
        }
    }

    QString SelectFirst(const QString& listName) {
        auto& list = Find<QAbstractItemView>("frmMain", listName);
        const QModelIndex first = list.model()->index(0, 0);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(first).center());
        return first.data().toString();
    }

    void Photograph(const QString& window, const std::string& state = {}) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() != window || !top->isVisible()) continue;
            const fs::path file = pictures_ / (window.toStdString() + state + ".png");
            if (top->grab().save(QString::fromStdString(file.string()))) Say("picture of " + file.string());
        }
    }

private:
    fs::path pictures_;
};

void Print(const fs::path& file, int lines) {
    std::ifstream text(file);
    std::cout << "\n" << file.filename().string() << ":\n";
    for (std::string line; lines > 0 && std::getline(text, line); --lines)
        std::cout << "    " << line << '\n';
    if (!text.eof()) std::cout << "    ...\n";
}

/// Does something in a modal window once it has been there for so many looks.
class Expecting {
public:
    Expecting(QString window, std::function<void()> act, int looks = 1)
        : window_(std::move(window)), act_(std::move(act)), looks_(looks) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
        timer_.start(40);
    }

    /// Ends the tour if the window never came.
    void Check() const {
        if (looks_ > 0) throw std::runtime_error(window_.toStdString() + " did not show up");
    }

private:
    void Look() {
        const QWidget* const modal = QApplication::activeModalWidget();
        if (modal == nullptr || modal->objectName() != window_ || looks_ == 0) return;
        if (--looks_ == 0) act_();
    }

    QString window_;
    std::function<void()> act_;
    int looks_;
    QTimer timer_;
};

void MoveFirst(Visitor& visitor, int type) {
    const QString moved = visitor.SelectFirst("MainList");
    visitor.Say("move \"" + moved.toStdString() + "\" to type " + std::to_string(type) + " by hand");
    visitor.Click("frmMain", QStringLiteral("ButtonAdd(%1)").arg(type));
}

/// Demonstration mode: classify, move two files by hand, export.
void ShowExport(Visitor& visitor) {
    visitor.Photograph("frmMain", "-start");
    for (const char* language : {"Deutsch", "English"}) {
        visitor.Say(std::string("choose the language ") + language);
        visitor.ChooseLanguage(language);
    }
    visitor.Say("classify the files");
    visitor.Click("frmMain", "ButtonClassifyFiles");
    visitor.Photograph("frmMain", "-classified");
    MoveFirst(visitor, 1);
    MoveFirst(visitor, 5);
    visitor.Photograph("frmMain", "-sorted");
    visitor.Say("export");
    const Expecting run(
        "frmExport", [&] { visitor.Photograph("frmExport"); }, 4);
    const Expecting results("frmResults", [&] {
        visitor.Photograph("frmResults");
        visitor.Say("close the results");
        visitor.Click("frmResults", "ButtonCloseResults");
    });
    visitor.Click("frmMain", "ButtonExportCameras");
    results.Check();
    visitor.Photograph("frmMain");
}

/// Normal mode: import what was just exported, rename one of the new files.
void ShowImport(Visitor& visitor) {
    visitor.Say("leave demonstration mode");
    visitor.Click("frmMain", "CheckDemoMode");
    const Expecting import("frmImport", [&] {
        visitor.Say("import the file that was just exported");
        visitor.Click("frmImport", "OptionSource(2)");
        visitor.Photograph("frmImport");
        visitor.Click("frmImport", "ButtonStart");
        visitor.Photograph("frmImport", "-finished");
        visitor.Click("frmImport", "ButtonFinish");
    });
    visitor.Click("frmMain", "ButtonImportFiles");
    import.Check();
    const QString renamed = visitor.SelectFirst("MainList");
    const Expecting rename("frmRename", [&] {
        visitor.Say("rename \"" + renamed.toStdString() + "\"");
        visitor.Photograph("frmRename");
        QWidget& name = visitor.Find("frmRename", "TextFileName");
        QTest::keyClicks(&name, "Town cameras_050");
        QTest::keyClick(&name, Qt::Key_Return);
    });
    visitor.Click("frmMain", "ButtonRenameFile");
    rename.Check();
    visitor.Photograph("frmMain", "-imported");
}

void PrintNames(const fs::path& folder) {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename());
    std::cout << "\n" << folder.filename().string() << "/:\n";
    for (const std::string& name : names) std::cout << "    " << name << '\n';
}

int Tour(char* programName, const fs::path& source, const fs::path& output) {
    fs::remove_all(output);
    const fs::path folder = output / "halvenmoor";
    const fs::path runtime = output / "runtime";
    fs::create_directories(runtime);
    fs::permissions(runtime, fs::perms::owner_all);
    fs::copy(source, folder, fs::copy_options::recursive);
    // The tour starts with what is installed, whatever has been done in the program folder.
    for (const char* used : {"demo/txt_demo", "asc", "import/txt"}) {
        fs::remove_all(folder / used);
        fs::create_directories(folder / used);
    }

    const system::SystemLocale locale = system::SystemLocale::OfUser();
    const auto finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem(*finder);
    system::DiskHostFiles hostFiles(*finder);
    system::SystemClock clock;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qt::QtPlatform qt(programName, locale, hostFiles);
    const auto instanceLock = system::MakeInstanceLock(fs::absolute(runtime).string());
    qt::QtProgramInfo programInfo(*instanceLock, fs::absolute(folder).string());
    system::SettingsFile settings(fs::absolute(output / "options").string());
    Program program({fileSystem, hostFiles, programInfo, clock, settings, qt.messages, qt.fileDialogs,
                     qt.browser, qt.theme, locale},
                    qt.toolkit);
    program.Start();
    if (program.Core().MainForm == nullptr) throw std::runtime_error("another tour is running");

    Visitor visitor(output);
    ShowExport(visitor);
    fs::copy(folder / "demo/txt_demo/SpeedCamText.txt", folder / "import/txt");
    ShowImport(visitor);
    program.MainForm().UserClose();
    Print(folder / "demo/Export Results.txt", 20);
    Print(folder / "demo/txt_demo/SpeedCamText.txt", 8);
    PrintNames(folder / "asc");
    std::cout << "\nThe pictures and the program folder of this tour are in " << output.string() << "\n";
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 2 && arguments[1] == std::string_view("--display")) {
        qt::PreferX11();
        qInstallMessageHandler(qt::EndWithoutDisplay);
        const QGuiApplication application(count, arguments);
        return QGuiApplication::platformName() == "offscreen" ? 1 : 0;
    }
    if (count != 3) {
        std::cerr << "usage: tour PROGRAM_FOLDER OUTPUT_FOLDER\n";
        return 2;
    }
    try {
        return Tour(arguments[0], arguments[1], arguments[2]);
    } catch (const std::exception& exception) {
        std::cerr << "tour: " << exception.what() << '\n';
        return 1;
    }
}
