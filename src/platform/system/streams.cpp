#include "platform/system/streams.h"

#include "base/failure.h"

#include <algorithm>

namespace halvenmoor::system {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

InputBuffer::InputBuffer(File file, std::uint64_t size)
    : file_(std::move(file)),
      capacity_(kBufferSize),
      buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)),
      unreadSize_(size) {
    // The size of a file that the system makes up at each read is 0.
    if (size == 0 && file_.Read({buffer_.get(), 1}) != 0) throw AccessFailure();
}

bool InputBuffer::Fill() {
    if (unreadSize_ == 0) return false;
    MakeSpace();
    const std::size_t wanted = std::min<std::uint64_t>(capacity_ - end_, unreadSize_);
    const std::size_t count = file_.Read({buffer_.get() + end_, wanted});
    if (count == 0) throw AccessFailure();
    unreadSize_ -= count;
    end_ += count;
    return true;
}

void InputBuffer::MakeSpace() {
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
    unreadSize_ = 1;
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
    return done;
}

DiskTextWriter::DiskTextWriter(File file, std::string path)
    : file_(std::move(file)),
      path_(std::move(path)),
      wholeSize_(file_.Size()),
      buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)) {
}

void DiskTextWriter::WriteLine(std::initializer_list<std::string_view> parts) {
    constexpr std::string_view kLineEnd = "\r\n";
    ThrowIfFailed();
    if (!file_.IsOpen()) throw AccessFailure();
    std::size_t lineSize = kLineEnd.size();
    for (const std::string_view part : parts) lineSize += part.size();
    if (lineSize > capacity_ - size_) Reserve(lineSize);
    char* end = buffer_.get() + size_;
    for (const std::string_view part : parts) end += part.copy(end, part.size());
    kLineEnd.copy(end, kLineEnd.size());
    size_ += lineSize;
}

/// Empties the buffer, and makes it larger if the line is longer.
void DiskTextWriter::Reserve(std::size_t lineSize) {
    Flush();
    ThrowIfFailed();
    if (lineSize <= capacity_) return;
    buffer_ = std::make_unique_for_overwrite<char[]>(lineSize);
    capacity_ = lineSize;
}

void DiskTextWriter::Sync() {
    Flush();
    ThrowIfFailed();
    file_.Sync();
    if (!path_.empty()) SyncEntry(path_);
}

void DiskTextWriter::Close() {
    Flush();
    const int closeError = file_.Close();
    if (error_ == 0) error_ = closeError;
    ThrowIfFailed();
}

void DiskTextWriter::Flush() noexcept {
    if (error_ != 0 || size_ == 0) return;
    const std::string_view lines(buffer_.get(), std::exchange(size_, 0));
    const auto [count, error] = file_.Write(lines);
    error_ = error;
    // Half a line would become one line with the first that somebody appends.
    wholeSize_ += lines.substr(0, count).rfind('\n') + 1;
    if (error != 0) file_.CutTo(wholeSize_);
}

}  // namespace halvenmoor::system
