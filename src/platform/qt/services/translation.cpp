#include "platform/qt/services/translation.h"

#include "base/text/compare.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QString>
#include <algorithm>
#include <iterator>

namespace halvenmoor::qt {

namespace {

struct Language {
    std::string_view name;
    /// As in the names of Qt's files.
    const char* locale;
};

// Where Qt has a near relative only, that one is better than English.
constexpr Language kLanguages[] = {
    {"Български", "bg"},    {"Čeština", "cs"},
    {"Dansk", "da"},        {"Deutsch", "de"},
    {"Español", "es"},      {"Français", "fr"},
    {"Hrvatski", "hr"},     {"Italiano", "it"},
    {"Magyar", "hu"},       {"Nederlands", "nl"},
    {"Norsk", "nn"},        {"Polski", "pl"},
    {"Português", "pt_BR"}, {"Português Brasil", "pt_BR"},
    {"Русский", "ru"},      {"Slovenčina", "sk"},
    {"Suomi", "fi"},        {"Türkçe", "tr"},
    {"Українська", "uk"},
};

}  // namespace

void Translation::SetLanguage(std::string_view name) {
    QCoreApplication::removeTranslator(&translator_);
    const text::CodePage& page = text::WindowsCodePage(1252);  // not used: both names are UTF-8
    const auto language =
        std::find_if(std::begin(kLanguages), std::end(kLanguages),
                     [&](const Language& known) { return text::EqualIgnoringCase(known.name, name, page); });
    if (language == std::end(kLanguages)) return;
    const QString file = QStringLiteral("qtbase_") + language->locale;
    const bool isLoaded = translator_.load(file, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
                          translator_.load(file, QStringLiteral(":/translations"));
    if (isLoaded) QCoreApplication::installTranslator(&translator_);
}

}  // namespace halvenmoor::qt
