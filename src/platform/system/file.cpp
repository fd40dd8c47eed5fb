#include "platform/system/file.h"

namespace halvenmoor::system {

std::optional<std::string> ReadSmallFile(const std::string& path) {
    constexpr std::size_t kMaxBytes = 1024 * 1024;
    try {
        const File file = OpenForReading(path);
        const std::uint64_t size = file.Size();
        if (size > kMaxBytes) return std::nullopt;
        std::string text(static_cast<std::size_t>(size), '\0');
        std::size_t done = 0;
        while (const std::size_t count = file.Read(std::span(text).subspan(done))) done += count;
        text.resize(done);
        return text;
    } catch (const Failure& failure) {
        return failure.Number() == failure::FileNotFound ? std::optional(std::string()) : std::nullopt;
    }
}

}  // namespace halvenmoor::system
