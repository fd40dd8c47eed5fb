#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace halvenmoor {

/// The numbers by which a failure is known; messages show them to the user.
namespace failure {
enum Number {
    Overflow = 6,
    OutOfMemory = 7,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileAccess = 57,
    FileExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    PathNotFound = 76,
    BadPattern = 93,
    CannotCreateObject = 429
};
}  // namespace failure

/// A platform call that failed or a limit that was broken.
class Failure : public std::runtime_error {
public:
    Failure(int number, const std::string& description) : std::runtime_error(description), number_(number) {}

    /// One of the numbers in the namespace failure.
    int Number() const noexcept { return number_; }

private:
    int number_;
};

/// For developers, to be called by every handler that swallows an exception: if the environment has
/// HALVENMOOR_TRACE, prints what failed, the file (empty: none is known) and the failure's number (0: it is
/// no Failure) as one line to standard error. Silent otherwise.
void TraceFailure(std::string_view what, std::string_view file = {}) noexcept;

}  // namespace halvenmoor
