#include "platform/posix/streams.h"

#include "base/failure.h"

#include <algorithm>
#include <cerrno>

namespace halvenmoor::posix {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

InputBuffer::InputBuffer(FileDescriptor file)
    : file_(std::move(file)),
      capacity_(kBufferSize),
      buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)) {
}

bool InputBuffer::Fill() {
    if (isAtEnd_) return false;
    MakeRoom();
    const std::size_t count = file_.Read({buffer_.get() + end_, capacity_ - end_});
    end_ += count;
    isAtEnd_ = count == 0;
    return !isAtEnd_;
}

void InputBuffer::MakeRoom() {
    const std::string_view unread = Unread();
    if (unread.size() < capacity_) {
        std::copy(unread.begin(), unread.end(), buffer_.get());
    } else {
        auto larger = std::make_unique_for_overwrite<char[]>(2 * capacity_);
        unread.copy(larger.get(), unread.size());
        buffer_ = std::move(larger);
        capacity_ *= 2;
    }
    begin_ = 0;
    end_ = unread.size();
}

void InputBuffer::Close() {
    file_.Close();
    begin_ = end_;
    isAtEnd_ = false;
}

bool DiskTextReader::AtEndOfStream() {
    return input_.Unread().empty() && !Fill();
}

std::string_view DiskTextReader::ReadLine() {
    std::size_t searched = 0;
    while (true) {
        const std::string_view unread = input_.Unread();
        const std::size_t length = unread.find('\n', searched);
        if (length != std::string_view::npos) {
            input_.Take(length + 1);
            const bool endsWithCr = length > 0 && unread[length - 1] == '\r';
            return unread.substr(0, length - (endsWithCr ? 1 : 0));
        }
        searched = unread.size();
        if (Fill()) continue;
        const std::string_view last = input_.Unread();  // it has moved
        if (last.empty()) throw Failure(failure::InputPastEnd, "Input past end of file");
        input_.Take(last.size());
        return last;
    }
}

/// Reads on, at the start of the file behind its byte-order mark. False when that gives nothing more.
bool DiskTextReader::Fill() {
    if (isStarted_) return input_.Fill();
    while (input_.Unread().size() < kByteOrderMark.size() && input_.Fill()) {
    }
    isStarted_ = true;
    if (input_.Unread().starts_with(kByteOrderMark)) input_.Take(kByteOrderMark.size());
    return !input_.Unread().empty() || input_.Fill();
}

std::size_t DiskByteReader::Read(std::span<char> buffer) {
    std::size_t done = 0;
    while (done < buffer.size() && (!input_.Unread().empty() || input_.Fill())) {
        const std::size_t count = input_.Unread().copy(buffer.data() + done, buffer.size() - done);
        input_.Take(count);
        done += count;
    }
    const bool hasEnded = done < buffer.size();
    remaining_ = hasEnded ? 0 : remaining_ - std::min<std::uint64_t>(done, remaining_);
    return done;
}

DiskTextWriter::DiskTextWriter(FileDescriptor file)
    : file_(std::move(file)), buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)) {
}

void DiskTextWriter::WriteLine(std::initializer_list<std::string_view> parts) {
    ThrowIfFailed();
    if (!file_.IsOpen()) throw SystemFailure(EBADF);
    for (const std::string_view part : parts) Append(part);
    Append("\r\n");
}

void DiskTextWriter::Close() {
    Flush();
    const int closeError = file_.Close();
    if (error_ == 0) error_ = closeError;
    ThrowIfFailed();
}

void DiskTextWriter::AppendPiecewise(std::string_view bytes) {
    while (bytes.size() > Free()) {
        const std::size_t free = Free();
        Append(bytes.substr(0, free));
        bytes.remove_prefix(free);
        Flush();
        ThrowIfFailed();
    }
    Append(bytes);
}

void DiskTextWriter::Flush() noexcept {
    if (error_ == 0) error_ = file_.Write({buffer_.get(), size_});
    size_ = 0;
}

}  // namespace halvenmoor::posix
