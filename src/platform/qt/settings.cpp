#include "platform/qt/settings.h"

#include <QStandardPaths>

namespace halvenmoor::qt {

namespace {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Key(std::string_view application, std::string_view section, std::string_view name) {
    return ToQString(application) + '/' + ToQString(section) + '/' + ToQString(name);
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
    settings_.setValue(Key(application, section, name), ToQString(value));
    settings_.sync();
}

QString QtSettings::DefaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/halvenmoor");
}

}  // namespace halvenmoor::qt
