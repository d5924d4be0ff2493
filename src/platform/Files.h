#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Files and folders by narrow paths, in which `\` and `/` both separate folders on every system.
/// Nothing here throws but for lack of memory; failures are answered, with the system's own words where a
/// person may have to be told.
namespace orvane {

using Bytes = std::span<const std::byte>;

/// The path with the system's own separators.
std::string nativePath(std::string_view path);

/// Joins a folder and a file name with `\`, unless the folder already ends in a separator.
std::string joinPath(std::string_view folder, std::string_view name);

bool canOpenForReading(const std::string& path);

/// Nothing when the folder was made; "already there" is `FolderResult::existed`.
enum class FolderResult { created, existed, failed };
/// Makes one folder; its parent has to be there. On failure `error` gets the system's words.
FolderResult createFolder(const std::string& path, std::string& error);

/// Removes a file; answers whether it did.
bool removeFile(const std::string& path);
/// Removes a folder if it is empty; answers whether it did.
bool removeEmptyFolder(const std::string& path);

/// The folder that the system shows as the user's desktop.
std::string desktopFolder();

/// The folder in which the process runs.
std::string currentFolder();

/// Why the system cannot take this as the name of a file, as the end of a sentence ("is longer than 255
/// bytes"); nothing when it can.
std::optional<std::string> fileNameFault(std::string_view name);

/// A file that is being written, moved along by its own position. After a failed call every later one fails
/// too, and `error` keeps the first fault. A file that was never closed, or kept, is gone with the object
/// where it was temporary.
class OutputFile {
public:
    /// Makes an empty file, or empties the one that is there.
    static OutputFile create(const std::string& path);
    /// Makes a new file under a name of its own in `folder`, to be moved to its real name when it is
    /// complete.
    static OutputFile createTemporary(const std::string& folder);
    /// Makes a file without any name, in the file system of `folder`: the system frees it with the object,
    /// also when the process is killed.
    static OutputFile createNameless(const std::string& folder);

    OutputFile(OutputFile&& other) noexcept;
    OutputFile& operator=(OutputFile&& other) noexcept;
    ~OutputFile();

    bool isGood() const { return error_.empty(); }
    /// The first fault in the system's words; empty when all went well.
    const std::string& error() const { return error_; }
    std::int64_t position() const { return position_; }

    /// Appends all pieces one behind the other.
    bool write(std::span<const Bytes> pieces);
    bool write(std::string_view text);
    /// Overwrites bytes that were written before; the position stays.
    bool overwrite(std::int64_t offset, Bytes bytes);
    /// Appends a range of another file, inside the system where that is possible.
    bool append(const OutputFile& source, std::int64_t offset, std::int64_t length);
    /// Appends a whole file by its path; gives the number of bytes, nothing when it cannot be opened or read.
    std::optional<std::int64_t> appendFile(const std::string& path);

    bool close();
    /// Closes a temporary file and gives it its real name, in place of a file that may stand there.
    bool moveTo(const std::string& path);

private:
    OutputFile() = default;
    bool fail(std::string_view what, int code);

    int descriptor_ = -1;
    std::int64_t position_ = 0;
    std::string temporaryPath_; ///< empty for a file under its real name
    std::string error_;
};

} // namespace orvane
