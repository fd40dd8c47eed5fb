#pragma once

#include <stdexcept>
#include <string>

namespace halvenmoor {

/// The numbers by which a failure is known; messages show them to the user.
namespace failure {
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAccess = 57;
inline constexpr int FileExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathNotFound = 76;
inline constexpr int BadPattern = 93;
inline constexpr int CannotCreateObject = 429;
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

}  // namespace halvenmoor
