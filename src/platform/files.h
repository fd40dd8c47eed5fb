#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::platform {

// Paths and names are bytes as the file system has them. A path is found without regard to letter case, the
// exact one first, for reading as for writing; only where there is none a new file is made, with its name as
// it is given. Every failed call throws Failure.

/// A text file being read. A line ends at CR LF or LF; a UTF-8 byte-order mark at the start is skipped.
class TextReader {
public:
    virtual ~TextReader() = default;

    /// True when no line is left.
    virtual bool AtEndOfStream() = 0;
    /// The next line without its line end, valid until the next call.
    virtual std::string_view ReadLine() = 0;
    virtual void Close() = 0;
};

/// A text file being written. It holds whole lines at any time, also after a failure. Without Close, what was
/// written still reaches the file, but a failure then goes unseen.
class TextWriter {
public:
    virtual ~TextWriter() = default;

    /// Writes the parts of a line one behind the other, then CR LF.
    virtual void WriteLine(std::initializer_list<std::string_view> parts) = 0;
    void WriteLine(std::string_view text) { WriteLine({text}); }
    /// Brings the lines to the medium, so that a power cut does not take them, and the entry of a new file
    /// too. May take seconds.
    virtual void Sync() = 0;
    virtual void Close() = 0;
};

/// The files that lie directly in one folder: every entry that is no folder. Here each name is exact, and no
/// other file is looked for.
class Folder {
public:
    virtual ~Folder() = default;

    /// Names with their extensions, in the order of their bytes.
    virtual std::vector<std::string> Files() const = 0;
    /// Deletes the file of this name, even if it is read-only; a link is deleted as a link.
    virtual void Delete(std::string_view name) = 0;
    /// A new or emptied file.
    virtual std::unique_ptr<TextWriter> CreateTextFile(std::string_view name) = 0;
    /// Brings all its files to the medium, as TextWriter::Sync does for one. May take seconds.
    virtual void Sync() const = 0;
};

/// The file-system object. Each routine that needs one makes its own.
class FileSystemObject {
public:
    virtual ~FileSystemObject() = default;

    virtual bool FileExists(std::string_view path) = 0;
    virtual bool FolderExists(std::string_view path) = 0;
    /// Whether both paths lead to one folder; links are followed.
    virtual bool IsSameFolder(std::string_view a, std::string_view b) = 0;
    virtual std::unique_ptr<Folder> GetFolder(std::string_view path) = 0;
    /// A new or emptied file.
    virtual std::unique_ptr<TextWriter> CreateTextFile(std::string_view path) = 0;
    virtual std::unique_ptr<TextReader> OpenTextFile(std::string_view path) = 0;
    /// Writes behind the last byte of a file that exists.
    virtual std::unique_ptr<TextWriter> OpenForAppending(std::string_view path) = 0;
};

/// Makes file-system objects. The making may fail too.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual std::unique_ptr<FileSystemObject> CreateFileSystemObject() = 0;
};

/// A file read as bytes from its start to its end.
class ByteReader {
public:
    virtual ~ByteReader() = default;

    /// The next bytes in order, as many as the buffer takes; fewer at the end of the file. Returns their
    /// number.
    virtual std::size_t Read(std::span<char> buffer) = 0;
    /// The bytes that are left.
    virtual std::uint64_t Remaining() const = 0;
};

/// The file operations beside the file-system object.
class HostFiles {
public:
    virtual ~HostFiles() = default;

    /// Hands over the bare name of each file of the folder whose last characters are the extension (".asc",
    /// ASCII), ignoring case. Hidden files are left out, and all that is no regular file. A failure may come
    /// after some names.
    virtual void Search(std::string_view folder, std::string_view extension,
                        const std::function<void(std::string_view)>& found) = 0;
    /// The path of the file that writing to this one would change; nothing when it would make a new one.
    virtual std::optional<std::string> FindFile(std::string_view path) = 0;
    virtual std::unique_ptr<ByteReader> OpenBytes(std::string_view path) = 0;
    /// Never replaces a file: fails if the new path exists.
    virtual void Rename(std::string_view oldPath, std::string_view newPath) = 0;
};

}  // namespace halvenmoor::platform
