#include "catalogue/languages.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/decode.h"
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

void InitialiseLanguageList(forms::ComboBox& list, const modMain& core) {
    cNamesClass& names = *core.Names;
    const text::CodePage& codePage = core.Services().locale.CodePage();
    if (names.Language().empty()) names.SetLanguage(core.ReadSetting("Language", kEnglish));
    FillLanguageList(list, core.Services(), core.LanguageFolder());
    if (!FindLanguageInList(list, kEnglish, false, codePage)) list.AddItem(std::string(kEnglish));
    if (FindLanguageInList(list, names.Language(), true, codePage)) return;
    if (FindLanguageInList(list, kEnglish, true, codePage)) names.SetLanguage(std::string(kEnglish));
}

void FillLanguageList(forms::ComboBox& list, const platform::Platform& services, const std::string& folder) {
    const text::CodePage& codePage = services.locale.CodePage();
    list.Clear();
    try {
        services.hostFiles.Search(folder, kExtension, [&](std::string_view fileName) {
            const std::string name = ShownName(fileName, codePage);
            if (FindLanguageInList(list, name, false, codePage)) return;
            // A name without a file, such as that of a dangling link, could not be chosen.
            if (!FileExistsCheck(services.fileSystem, folder + name + std::string(kExtension))) return;
            list.AddItem(name);
        });
    } catch (const std::exception&) {
        TraceFailure("list the languages", folder);
        // The languages found so far are offered.
    }
}

bool FindLanguageInList(forms::ComboBox& list, std::string_view name, bool select,
                        const text::CodePage& codePage) {
    for (int i = 0; i < list.ListCount(); ++i) {
        if (!text::EqualIgnoringCase(list.List(i), name, codePage)) continue;
        if (select) list.SetListIndex(i);
        return true;
    }
    return false;
}

bool FileExistsCheck(platform::FileSystem& fileSystem, std::string_view path) {
    try {
        return fileSystem.CreateFileSystemObject()->FileExists(path);
    } catch (const std::exception&) {
        TraceFailure("look for a file", path);
        return false;
    }
}

}  // namespace halvenmoor
