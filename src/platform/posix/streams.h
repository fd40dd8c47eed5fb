#pragma once

#include "platform/files.h"
#include "platform/posix/system.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

namespace halvenmoor::posix {

/// What streams read and write at once, in bytes.
inline constexpr std::size_t kBufferSize = 64 * 1024;

/// The bytes of a file that were read and not yet taken.
class InputBuffer {
public:
    explicit InputBuffer(FileDescriptor file);

    /// Valid until Fill.
    std::string_view Unread() const { return {buffer_.get() + begin_, end_ - begin_}; }
    /// Takes so many of the unread bytes.
    void Take(std::size_t count) { begin_ += count; }
    /// Reads on behind the unread bytes, with space for at least one more. False at the end of the file.
    bool Fill();
    /// Drops what is unread. Later reading fails.
    void Close();

private:
    void MakeRoom();

    FileDescriptor file_;
    std::size_t capacity_;
    std::unique_ptr<char[]> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    bool isAtEnd_ = false;
};

class DiskTextReader : public platform::TextReader {
public:
    explicit DiskTextReader(FileDescriptor file) : input_(std::move(file)) {}

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
    DiskByteReader(FileDescriptor file, std::uint64_t size) : input_(std::move(file)), remaining_(size) {}

    std::size_t Read(std::span<char> buffer) override;
    std::uint64_t Remaining() const override { return remaining_; }

private:
    InputBuffer input_;
    std::uint64_t remaining_;
};

class DiskTextWriter : public platform::TextWriter {
public:
    explicit DiskTextWriter(FileDescriptor file);
    ~DiskTextWriter() override { Flush(); }

    void WriteLine(std::initializer_list<std::string_view> parts) override;
    void Close() override;

private:
    void Append(std::string_view bytes) {
        if (bytes.size() > Free()) return AppendPiecewise(bytes);
        bytes.copy(buffer_.get() + size_, bytes.size());
        size_ += bytes.size();
    }
    std::size_t Free() const { return kBufferSize - size_; }
    void AppendPiecewise(std::string_view bytes);
    void Flush() noexcept;
    void ThrowIfFailed() const {
        if (error_ != 0) throw SystemFailure(error_);
    }

    FileDescriptor file_;
    std::unique_ptr<char[]> buffer_;
    std::size_t size_ = 0;
    int error_ = 0;  // of the first write that failed; nothing is written after it
};

}  // namespace halvenmoor::posix
