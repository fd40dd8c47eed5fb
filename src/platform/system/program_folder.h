#pragma once

#include <string>

namespace halvenmoor::system {

/// The folder of the running program, without a separator at its end, whatever bytes its name holds. Empty
/// when the system does not tell.
std::string ExecutableFolder();

/// The folder in which the program of this folder works, without a separator at its end: the same one, or
/// where the user cannot write there, or `data` beside the program leads to the files of a package, a folder
/// of the user's own (user_folder.h), which is completed first. Throws Failure, with that folder in its
/// words.
std::string ProgramFolder(const std::string& executableFolder = ExecutableFolder());

}  // namespace halvenmoor::system
