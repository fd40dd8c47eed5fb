#include "platform/qt/services/file_dialogs.h"

#include "platform/qt/windows/form_window.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace halvenmoor::qt {

namespace {

/// Accepts no path in a folder that does not exist.
class PathDialog : public QFileDialog {
public:
    PathDialog(const platform::FileDialog& dialog, AcceptMode acceptMode, FileMode fileMode);

    std::optional<std::string> Ask();

    void accept() override;
};

/// "Text File (*.txt)|*.txt" becomes "Text File (*.txt)": Qt reads the patterns from the brackets.
QStringList NameFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].section('(', 0, 0).trimmed();
        filters << description + " (" + QString(parts[i + 1]).replace(';', ' ') + ')';
    }
    return filters;
}

PathDialog::PathDialog(const platform::FileDialog& dialog, AcceptMode acceptMode, FileMode fileMode)
    : QFileDialog(TopWindow()) {
    setOption(DontUseNativeDialog);
    setAcceptMode(acceptMode);
    setFileMode(fileMode);
    setWindowTitle(QString::fromStdString(dialog.title));
    setNameFilters(NameFilters(dialog.filter));
    setDefaultSuffix(QString::fromStdString(dialog.defaultExtension));
    setDirectory(QFile::decodeName(dialog.folder.c_str()));
    selectFile(QString::fromStdString(dialog.suggestedName));
}

std::optional<std::string> PathDialog::Ask() {
    if (exec() != Accepted || selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(selectedFiles().constFirst()).toStdString();
}

void PathDialog::accept() {
    const QString folder = QFileInfo(selectedFiles().value(0)).path();
    if (QFileInfo(folder).isDir()) {
        QFileDialog::accept();
        return;
    }
    QMessageBox::warning(this, windowTitle(),
                         tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
                             .arg(QDir::toNativeSeparators(folder)));
}

}  // namespace

std::optional<std::string> QtFileDialogs::AskSavePath(const platform::FileDialog& dialog) {
    return PathDialog(dialog, QFileDialog::AcceptSave, QFileDialog::AnyFile).Ask();
}

std::optional<std::string> QtFileDialogs::AskOpenPath(const platform::FileDialog& dialog) {
    return PathDialog(dialog, QFileDialog::AcceptOpen, QFileDialog::ExistingFile).Ask();
}

}  // namespace halvenmoor::qt
