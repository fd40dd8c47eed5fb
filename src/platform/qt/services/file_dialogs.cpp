#include "platform/qt/services/file_dialogs.h"

#include "platform/qt/windows/conversions.h"
#include "platform/qt/windows/form_window.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace halvenmoor::qt {

namespace {

/// Accepts no path in a folder that does not exist, and asks before it accepts a file to be replaced.
class PathDialog : public QFileDialog {
public:
    PathDialog(const platform::FileDialog& dialog, platform::HostFiles& files, AcceptMode acceptMode,
               FileMode fileMode);

    std::optional<std::string> Ask();

    void accept() override;

private:
    bool MayBeWritten(const QString& path);

    platform::HostFiles& files_;
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

PathDialog::PathDialog(const platform::FileDialog& dialog, platform::HostFiles& files, AcceptMode acceptMode,
                       FileMode fileMode)
    : QFileDialog(TopWindow()), files_(files) {
    // A desktop's dialog asks about a file of exactly the typed name, not about the one that would be
    // emptied.
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);  // Qt would ask about a file of exactly this name
    setAcceptMode(acceptMode);
    setFileMode(fileMode);
    setWindowTitle(QString::fromStdString(dialog.title));
    setNameFilters(NameFilters(dialog.filter));
    setDefaultSuffix(QString::fromStdString(dialog.defaultExtension));
    setDirectory(FromPath(dialog.folder));
    selectFile(QString::fromStdString(dialog.suggestedName));
}

std::optional<std::string> PathDialog::Ask() {
    if (exec() != Accepted || selectedFiles().isEmpty()) return std::nullopt;
    return ToPath(selectedFiles().constFirst());
}

void PathDialog::accept() {
    const QString path = selectedFiles().value(0);
    const QString folder = QFileInfo(path).path();
    if (QFileInfo(folder).isDir()) {
        if (acceptMode() == AcceptOpen || MayBeWritten(path)) QFileDialog::accept();
        return;
    }
    QMessageBox::warning(this, windowTitle(),
                         tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
                             .arg(QDir::toNativeSeparators(folder)));
}

bool PathDialog::MayBeWritten(const QString& path) {
    const std::optional<std::string> file = files_.FindFile(ToPath(path));
    if (!file) return true;
    const QString name = QFileInfo(FromPath(*file)).fileName();
    const QString question = tr("%1 already exists.\nDo you want to replace it?").arg(name);
    return QMessageBox::warning(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                                QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace

std::optional<std::string> QtFileDialogs::AskSavePath(const platform::FileDialog& dialog) {
    return PathDialog(dialog, files_, QFileDialog::AcceptSave, QFileDialog::AnyFile).Ask();
}

std::optional<std::string> QtFileDialogs::AskOpenPath(const platform::FileDialog& dialog) {
    return PathDialog(dialog, files_, QFileDialog::AcceptOpen, QFileDialog::ExistingFile).Ask();
}

}  // namespace halvenmoor::qt
