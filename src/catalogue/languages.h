#pragma once

#include "platform/files.h"

#include <string_view>

namespace halvenmoor {

class frmMain;

/// Fills the language list and selects the language in use, at the start the stored one; English where that
/// is not in the list. The selection's click loads the texts.
void InitialiseLanguageList(frmMain& window);

/// Lists the language files by their names in proper case.
void FillLanguageList(frmMain& window);

/// Whether the language is in the list, ignoring case; selects it there if wanted.
bool FindLanguageInList(frmMain& window, std::string_view name, bool select);

/// Whether the file exists; false also on any failure.
bool FileExistsCheck(platform::FileSystem& fileSystem, std::string_view path);

}  // namespace halvenmoor
