#pragma once

#include "base/failure.h"

#include <string>

namespace halvenmoor::system {

/// Where the program folder of this user is, without a separator at its end: as HALVENMOOR_FOLDER says, else
/// "Halvenmoor" in the folder for documents or, on POSIX, in the home folder, whichever has it already or can
/// have it. Throws Failure if there is no such place.
std::string UserFolder();

/// Makes the folder, in a folder that is there, and adds what is absent: Settings.ini and the demonstration
/// files as copies, languages and the manual as links to those in the folder of data, and the empty folders.
/// Where no links can be made, these are copies, too. What is there stays as it is, except for such links
/// that lead nowhere: they are renewed. Throws Failure, with the folder in its words; what has been added
/// until then stays, and the next call adds the rest.
void CompleteUserFolder(const std::string& folder, const std::string& data);

/// The failure with a path behind its words.
Failure WithPath(const Failure& failure, const std::string& path);

}  // namespace halvenmoor::system
