#pragma once

#include <string>

namespace halvenmoor::system {

/// Where the program folder of this user is, without a separator at its end: as HALVENMOOR_FOLDER says, else
/// "Halvenmoor" in the folder for documents or in the home folder, whichever has it already or can have it.
/// Throws Failure if there is no such place.
std::string UserFolder();

/// The folder for documents that the text of a user-dirs.dirs names, empty if it names none.
std::string DocumentsFolder(const std::string& userDirs, const std::string& home);

/// Makes the folder, in a folder that is there, and adds what is absent: Settings.ini and the demonstration
/// files as copies, languages and the manual as links to those in the folder of data, and the empty folders.
/// What is there stays as it is, except for such links that lead nowhere: they are renewed. Throws Failure,
/// with the folder in its words; what has been added until then stays, and the next call adds the rest.
void CompleteUserFolder(const std::string& folder, const std::string& data);

}  // namespace halvenmoor::system
