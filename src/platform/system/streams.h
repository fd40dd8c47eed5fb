#pragma once

#include "platform/files.h"
#include "platform/system/file.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace halvenmoor::system {

/// What streams read and write at once, in bytes.
inline constexpr std::size_t kBufferSize = 64 * 1024;

/// The bytes of a file that were read and not yet taken. The file is read as far as it went when it was
/// opened: what is added later is ignored.
class InputBuffer {
public:
    /// The size of the file in bytes. Throws Failure if that is 0, but the file is not empty.
    InputBuffer(File file, std::uint64_t size);

    /// The bytes that are left of the file, read or not.
    std::uint64_t Remaining() const { return unreadSize_ + Unread().size(); }

    /// Valid until Fill.
    std::string_view Unread() const { return {buffer_.get() + begin_, end_ - begin_}; }
    /// Takes so many of the unread bytes.
    void Take(std::size_t count) { begin_ += count; }
    /// Reads on behind the unread bytes, with space for at least one more. False at the end of the file.
    /// Throws Failure, also if the file has fewer bytes than its size.
    bool Fill();
    /// Drops what is unread. Later reading fails.
    void Close();

private:
    void MakeSpace();

    File file_;
    std::size_t capacity_;
    std::unique_ptr<char[]> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::uint64_t unreadSize_;
};

class DiskTextReader : public platform::TextReader {
public:
    /// The size of the file in bytes.
    DiskTextReader(File file, std::uint64_t size) : input_(std::move(file), size) {}

    bool AtEndOfStream() override;
    std::string_view ReadLine() override;
    void Close() override { input_.Close(); }

private:
    bool Fill();

    InputBuffer input_;
    bool isStarted_ = false;
};

class DiskByteReader : public platform::ByteReader {
public:
    /// The size of the file in bytes.
    DiskByteReader(File file, std::uint64_t size) : input_(std::move(file), size) {}

    std::size_t Read(std::span<char> buffer) override;
    std::uint64_t Remaining() const override { return input_.Remaining(); }

private:
    InputBuffer input_;
};

/// Collects whole lines and writes them together, so that the file never ends within a line, except while the
/// system is in a single write.
class DiskTextWriter : public platform::TextWriter {
public:
    /// Lines are added behind the present bytes. Without the file's path, Sync passes over its entry in the
    /// folder.
    explicit DiskTextWriter(File file, std::string path = {});
    ~DiskTextWriter() override { Flush(); }

    void WriteLine(std::initializer_list<std::string_view> parts) override;
    void Sync() override;
    void Close() override;

private:
    void Reserve(std::size_t lineSize);
    void Flush() noexcept;
    void ThrowIfFailed() const {
        if (error_ != 0) throw SystemFailure(error_);
    }

    File file_;
    const std::string path_;
    std::uint64_t wholeSize_;
    std::size_t capacity_ = kBufferSize;
    std::unique_ptr<char[]> buffer_;
    std::size_t size_ = 0;
    int error_ = 0;  // of the first write that failed; nothing is written after it
};

}  // namespace halvenmoor::system
