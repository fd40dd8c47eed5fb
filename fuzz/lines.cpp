// The lines of a text file: read in one piece, and byte by byte.

#include "fuzz/memory_platform.h"
#include "fuzz/property.h"
#include "platform/system/streams.h"
#include "tools/file_helpers.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace halvenmoor;
using fuzz::Require;

namespace {

Strings ReadInOnePiece(std::string_view bytes) {
    const int descriptor = memfd_create("text", MFD_CLOEXEC);
    system::File file(descriptor);
    Require(file.Write(bytes).error == 0 && lseek(descriptor, 0, SEEK_SET) == 0,
            "there is memory for the text");
    system::DiskTextReader reader(std::move(file), bytes.size());
    return ReadLines(reader);
}

/// A pipe in packet mode hands over one packet a read. It holds so many of them.
constexpr std::size_t kMaxPackets = 256;

Strings ReadByteByByte(std::string_view bytes) {
    int ends[2];
    Require(pipe2(ends, O_DIRECT | O_CLOEXEC) == 0, "there is a pipe");
    const int capacity = fcntl(ends[1], F_SETPIPE_SZ, 1 << 20);
    system::File out(ends[1]);
    system::File in(ends[0]);
    Require(capacity >= 1 << 20, "the pipe holds it");
    for (const char byte : bytes) Require(out.Write({&byte, 1}).error == 0, "a byte fits into the pipe");
    out.Close();
    system::DiskTextReader reader(std::move(in), bytes.size());
    return ReadLines(reader);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzz::Text(data, size).substr(0, kMaxPackets);
    const Strings lines = fuzz::Lines(bytes);
    Require(ReadInOnePiece(bytes) == lines, "lines read in one piece are the lines");
    Require(ReadByteByByte(bytes) == lines, "lines read byte by byte are the lines");
    fakes::MemoryFiles memory;
    memory.Put("/a", bytes);
    Require(ReadLines(memory, "/a") == lines, "the fake reads the same");
    return 0;
}
