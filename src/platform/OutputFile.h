#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

using Bytes = std::span<const std::byte>;

/// A file that is being written, moved along by its own position. After a failed call every later one fails
/// too, and `error` keeps the first fault. A file that was never closed, or kept, is gone with the object
/// where it was temporary.
class OutputFile {
public:
    /// Makes an empty file, or empties the one that is there.
    static OutputFile create(const std::string& path);
    /// Makes a file where nothing stands yet; it is temporary until it is kept.
    static OutputFile createNew(const std::string& path);
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
    /// Of a temporary file as long as it is one; empty otherwise.
    const std::string& temporaryPath() const { return temporaryPath_; }
    std::int64_t position() const { return position_; }

    /// Appends all pieces one behind the other.
    bool write(std::span<const Bytes> pieces);
    bool write(std::string_view text);
    /// Overwrites bytes that were written before; the position stays.
    bool overwrite(std::int64_t offset, Bytes bytes);
    /// Appends a range of another file, inside the system where that is possible.
    bool append(const OutputFile& source, std::int64_t offset, std::int64_t length);
    /// Appends a whole file by its path; gives the number of bytes, nothing when it is no regular
    /// file or cannot be read.
    std::optional<std::int64_t> appendFile(const std::string& path);

    bool close();
    /// Closes a temporary file that has its real name already.
    bool keep();
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
