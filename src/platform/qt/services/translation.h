#pragma once

#include <QTranslator>
#include <string_view>

namespace halvenmoor::qt {

/// Qt's own words, as in file dialogs and context menus, in the language of the program. It needs a
/// QCoreApplication.
class Translation {
public:
    /// A language by its name in the list of languages. Where Qt has no words of it, they are English. What
    /// is built from now on has the words.
    void SetLanguage(std::string_view name);

private:
    QTranslator translator_;
};

}  // namespace halvenmoor::qt
