#pragma once

#include "base/failure.h"
#include "platform/files.h"

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>

namespace halvenmoor::fakes {

/// Counts calls and makes those of a range fail.
class CallCounter {
public:
    /// Counts a call, and throws if it is to fail.
    void Count() {
        ++calls_;
        if (failure_ && calls_ >= first_ && calls_ <= last_) throw *failure_;
    }

    /// The object that takes the call, once it is counted.
    template <class Target>
    Target& Counted(Target& target) {
        Count();
        return target;
    }

    void Fail(int first, int last, const Failure& failure) {
        calls_ = 0;
        first_ = first;
        last_ = last;
        failure_ = failure;
    }

    int Calls() const { return calls_; }

private:
    int calls_ = 0;
    int first_ = 0;
    int last_ = 0;
    std::optional<Failure> failure_;
};

/// Hands every call on to other files, except for those that are to fail. Each call of a file-system object,
/// folder or stream counts, each making of such an object, and each name that a search hands over. It must
/// outlive all that it hands out.
class FailingFiles : public platform::FileSystem, public platform::HostFiles {
public:
    FailingFiles(platform::FileSystem& fileSystem, platform::HostFiles& hostFiles)
        : fileSystem_(fileSystem), hostFiles_(hostFiles) {}

    /// Makes one call fail, counted from now; 1 is the next one.
    void FailCall(int number, const Failure& failure) { counter_.Fail(number, number, failure); }
    /// Makes that call fail and all that follow.
    void FailFromCall(int number, const Failure& failure) {
        counter_.Fail(number, std::numeric_limits<int>::max(), failure);
    }
    /// The calls so far, counted as above.
    int Calls() const { return counter_.Calls(); }

    std::unique_ptr<platform::FileSystemObject> CreateFileSystemObject() override;

    void Search(std::string_view folder, std::string_view extension,
                const std::function<void(std::string_view)>& found) override;
    std::optional<std::string> FindFile(std::string_view path) override;
    std::unique_ptr<platform::ByteReader> OpenBytes(std::string_view path) override;
    void Rename(std::string_view oldPath, std::string_view newPath) override;

private:
    platform::FileSystem& fileSystem_;
    platform::HostFiles& hostFiles_;
    CallCounter counter_;
};

}  // namespace halvenmoor::fakes
