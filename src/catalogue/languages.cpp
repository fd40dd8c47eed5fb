#include "catalogue/languages.h"

#include "base/text/compare.h"
#include "base/text/decode.h"
#include "catalogue/frmMain.h"
#include "ui/language/cNamesClass.h"

#include <exception>

namespace halvenmoor {

namespace {

constexpr std::string_view kExtension = ".ini";
constexpr std::string_view kEnglish = "English";

std::string ShownName(std::string_view fileName, const text::CodePage& codePage) {
    return text::ProperCase(text::ToUtf8(fileName.substr(0, fileName.size() - kExtension.size()), codePage));
}

}  // namespace

void InitialiseLanguageList(frmMain& window) {
    modMain& core = window.Core();
    cNamesClass& names = *core.Names;
    if (names.Language().empty()) names.SetLanguage(core.ReadSetting("Language", kEnglish));
    FillLanguageList(window);
    if (!FindLanguageInList(window, kEnglish, false)) window.LanguageList.AddItem(std::string(kEnglish));
    if (FindLanguageInList(window, names.Language(), true)) return;
    if (FindLanguageInList(window, kEnglish, true)) names.SetLanguage(std::string(kEnglish));
}

void FillLanguageList(frmMain& window) {
    modMain& core = window.Core();
    window.LanguageList.Clear();
    const std::string folder = core.LanguageFolder();
    try {
        core.Services().hostFiles.Search(folder, kExtension, [&](std::string_view fileName) {
            const std::string name = ShownName(fileName, core.Services().locale.CodePage());
            if (FindLanguageInList(window, name, false)) return;
            // A name that cannot be found again, such as a dangling link, would be chosen in vain.
            if (!FileExistsCheck(core.Services().fileSystem, folder + name + std::string(kExtension))) return;
            window.LanguageList.AddItem(name);
        });
    } catch (const std::exception&) {
        // The languages found so far are offered.
    }
}

bool FindLanguageInList(frmMain& window, std::string_view name, bool select) {
    const text::CodePage& codePage = window.Core().Services().locale.CodePage();
    for (int i = 0; i < window.LanguageList.ListCount(); ++i) {
        if (!text::EqualIgnoringCase(window.LanguageList.List(i), name, codePage)) continue;
        if (select) window.LanguageList.SetListIndex(i);
        return true;
    }
    return false;
}

bool FileExistsCheck(platform::FileSystem& fileSystem, std::string_view path) {
    try {
        return fileSystem.CreateFileSystemObject()->FileExists(path);
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace halvenmoor
