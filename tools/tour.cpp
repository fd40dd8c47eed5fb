// A tour of the real windows without a display: it uses them as a user would, on a copy of a program folder
// with options of its own, shows what came out, and leaves a picture of each window.
//
//     tour PROGRAM_FOLDER OUTPUT_FOLDER
//     tour --display        only tells, by its exit status, whether a display answers

#include "catalogue/frmMain.h"
#include "platform/disk/clock.h"
#include "platform/disk/file_system.h"
#include "platform/disk/host_files.h"
#include "platform/disk/locale.h"
#include "platform/disk/path_finder.h"
#include "platform/qt/qt_platform.h"
#include "program.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

using namespace halvenmoor;
namespace fs = std::filesystem;

namespace {

/// The program runs in another folder than its executable's.
class TourApplication : public qt::QtApplication {
public:
    TourApplication(fs::path programFolder, const fs::path& runtimeFolder)
        : QtApplication(QString::fromStdString(runtimeFolder.string())),
          programFolder_(std::move(programFolder)) {}

    std::string ProgramFolder() const override { return programFolder_.string(); }

private:
    fs::path programFolder_;
};

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

    void Photograph(const QString& window) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() != window || !top->isVisible()) continue;
            const fs::path file = pictures_ / (window.toStdString() + ".png");
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

/// Takes pictures of the windows that an export opens, and closes the results.
class ExportWatcher {
public:
    explicit ExportWatcher(Visitor& visitor) : visitor_(visitor) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
        timer_.start(40);
    }

    bool SawResults() const { return sawResults_; }

private:
    void Look() {
        const QWidget* const modal = QApplication::activeModalWidget();
        if (modal == nullptr) return;
        if (modal->objectName() == "frmExport" && ++looksAtExport_ == 4) visitor_.Photograph("frmExport");
        if (modal->objectName() != "frmResults" || sawResults_) return;
        sawResults_ = true;
        visitor_.Photograph("frmResults");
        visitor_.Say("close the results");
        visitor_.Click("frmResults", "ButtonCloseResults");
    }

    Visitor& visitor_;
    QTimer timer_;
    int looksAtExport_ = 0;
    bool sawResults_ = false;
};

void Visit(Visitor& visitor) {
    visitor.Photograph("frmMain");
    for (const char* language : {"Deutsch", "English"}) {
        visitor.Say(std::string("choose the language ") + language);
        visitor.ChooseLanguage(language);
    }
    visitor.Say("classify the files");
    visitor.Click("frmMain", "ButtonClassifyFiles");
    const QString moved = visitor.SelectFirst("MainList");
    visitor.Say("move \"" + moved.toStdString() + "\" to type 1 by hand");
    visitor.Click("frmMain", "ButtonAdd(1)");
    visitor.Say("export");
    ExportWatcher watcher(visitor);
    visitor.Click("frmMain", "ButtonExportCameras");
    if (!watcher.SawResults()) throw std::runtime_error("the export showed no results");
    visitor.Photograph("frmMain");
}

int Tour(char* programName, const fs::path& source, const fs::path& output) {
    fs::remove_all(output);
    const fs::path folder = output / "halvenmoor";
    const fs::path runtime = output / "runtime";
    fs::create_directories(runtime);
    fs::permissions(runtime, fs::perms::owner_all);
    fs::copy(source, folder, fs::copy_options::recursive);
    fs::remove_all(folder / "demo/txt_demo");
    fs::create_directories(folder / "demo/txt_demo");

    const disk::DiskLocale locale = disk::DiskLocale::FromEnvironment();
    disk::PathFinder finder(locale.CodePage());
    disk::DiskFileSystem fileSystem(finder);
    disk::DiskHostFiles hostFiles(finder);
    disk::DiskClock clock;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qt::QtPlatform qt(programName, locale);
    TourApplication application(fs::absolute(folder), fs::absolute(runtime));
    qt::QtSettings settings(QString::fromStdString(fs::absolute(output / "options").string()));
    Program program(
        {fileSystem, hostFiles, application, clock, settings, qt.messages, qt.fileDialogs, qt.theme, locale},
        qt.toolkit);
    program.Start();
    if (program.Core().MainForm == nullptr) throw std::runtime_error("another tour is running");

    Visitor visitor(output);
    Visit(visitor);
    program.MainForm().UserClose();
    Print(folder / "demo/Export Results.txt", 20);
    Print(folder / "demo/txt_demo/SpeedCamText.txt", 8);
    std::cout << "\nThe pictures and the program folder of this tour are in " << output.string() << "\n";
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 2 && arguments[1] == std::string_view("--display")) {
        qt::PreferX11();
        const QGuiApplication application(count, arguments);  // ends the process where none answers
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
