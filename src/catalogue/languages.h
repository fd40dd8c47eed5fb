#pragma once

#include "core/modMain.h"
#include "forms/combo_box.h"

#include <string>
#include <string_view>

namespace halvenmoor {

/// Fills the language list and selects the language in use, at the start the stored one; English where that
/// is not in the list. The selection's click loads the texts.
void InitialiseLanguageList(forms::ComboBox& list, const modMain& core);

/// Lists the language files of a folder by their names in proper case. The folder ends with a separator. A
/// failure ends the search silently; the languages found before it stay.
void FillLanguageList(forms::ComboBox& list, const platform::Platform& services, const std::string& folder);

/// Whether the language is in the list, ignoring case; selects it there if wanted.
bool FindLanguageInList(forms::ComboBox& list, std::string_view name, bool select,
                        const text::CodePage& codePage);

/// Whether the file exists; false also on any failure.
bool FileExistsCheck(platform::FileSystem& fileSystem, std::string_view path);

}  // namespace halvenmoor
