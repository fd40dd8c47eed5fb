#pragma once

#include <string>

namespace halvenmoor::system {

/// A variable of the environment, empty when it is not set.
std::string Variable(const char* name);

/// The user's folder for options, as the environment names it.
std::string ConfigFolder();

}  // namespace halvenmoor::system
