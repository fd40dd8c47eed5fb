#include "platform/qt/services/settings.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace halvenmoor::qt {

namespace {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Key(std::string_view application, std::string_view section, std::string_view name) {
    return ToQString(application) + '/' + ToQString(section) + '/' + ToQString(name);
}

/// Removes what writers of the file left behind when they were killed: a lock, which would hold up the next
/// one for half a minute if it is still empty, and a new file that had not taken its place yet.
void RemoveLeftovers(const QString& path) {
    // The suffix of six letters is random. A name that a user gives to a copy is not in such mixed case.
    const QRegularExpression leftover(QStringLiteral(R"(\.(lock|(?=.*[a-z])(?=.+[A-Z])[A-Za-z]{6})$)"));
    const QFileInfo file(path);
    QDir folder = file.dir();
    for (const QString& name : folder.entryList({file.fileName() + QStringLiteral(".*")}, QDir::Files)) {
        if (leftover.match(name).hasMatch()) folder.remove(name);
    }
}

}  // namespace

QtSettings::QtSettings(const QString& folder)
    : settings_(folder + QStringLiteral("/halvenmoor.ini"), QSettings::IniFormat) {
}

std::string QtSettings::GetSetting(std::string_view application, std::string_view section,
                                   std::string_view name, std::string_view defaultValue) {
    const QVariant value = settings_.value(Key(application, section, name));
    if (value.typeId() != QMetaType::QString) return std::string(defaultValue);
    return value.toString().toStdString();
}

void QtSettings::SaveSetting(std::string_view application, std::string_view section, std::string_view name,
                             std::string_view value) {
    // Another instance of the user reads options but never gets as far as here.
    if (!hasSaved_) RemoveLeftovers(settings_.fileName());
    hasSaved_ = true;
    settings_.setValue(Key(application, section, name), ToQString(value));
    settings_.sync();
}

QString QtSettings::DefaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/halvenmoor");
}

}  // namespace halvenmoor::qt
