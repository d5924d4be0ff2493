#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Files and folders by narrow paths, in which `\` and `/` both separate folders on every system.
/// Nothing here throws but for lack of memory; failures are answered, with the system's own words where a
/// person may have to be told.
namespace orvane {

/// The path with the system's own separators.
std::string nativePath(std::string_view path);

/// Joins a folder and a file name with `\`, unless the folder already ends in a separator.
std::string joinPath(std::string_view folder, std::string_view name);

/// Whether the system finds anything under this path: a file, a folder or something else.
bool pathExists(const std::string& path);
/// The same, where a symbolic link that leads nowhere is something too: no new file can have this path.
bool nameIsTaken(const std::string& path);

/// A whole regular file; nothing when it cannot be read to its end, or holds more than `most` bytes.
std::optional<std::string> readWholeFile(const std::string& path, std::int64_t most);

/// How many files this process may keep open at once without ever running short of them.
std::size_t manyOpenFiles();
/// Waits until all that was written to the file system of a folder is on the disk. On failure, gives the
/// system's words; empty otherwise.
std::string flushFileSystem(const std::string& folder);

/// Nothing when the folder was made; "already there" is `FolderResult::existed`.
enum class FolderResult { created, existed, failed };
/// Makes one folder; its parent has to be there. On failure `error` gets the system's words.
FolderResult createFolder(const std::string& path, std::string& error);

/// Removes a file; answers whether it did. Takes no memory.
bool removeFile(const std::string& path) noexcept;
/// Removes a folder if it is empty; answers whether it did. Takes no memory.
bool removeEmptyFolder(const std::string& path) noexcept;

/// The folder that the system shows as the user's desktop.
std::string desktopFolder();

/// The folder in which the process runs.
std::string currentFolder();

/// Why the system cannot take this as the name of a file, as the end of a sentence ("is longer than 255
/// bytes"); nothing when it can.
std::optional<std::string> fileNameFault(std::string_view name);

} // namespace orvane
