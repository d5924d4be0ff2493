#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orvane::platform {
class TemporaryName;
}

namespace orvane {

using Bytes = std::span<const std::byte>;

enum class Placing {
    placed,
    existed, ///< something else has that name, and stays
    failed,
};

/// A file that is being written, moved along by its own position. It gets its name when it is complete, and
/// is gone with the object when it got none; where the system keeps files without a name, also when the
/// process is killed. After a failed call every later one fails too, and `error` keeps the first fault.
class OutputFile {
public:
    /// Makes an empty file in the file system of `folder`, which its name will be in.
    static OutputFile create(const std::string& folder);

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
    /// Appends a whole regular file by its path.
    bool appendFile(const std::string& path);

    /// Whether another file has the same bytes; not, where either cannot be read.
    bool equals(const OutputFile& other) const { return equals(other.descriptor_, other.position_); }
    bool equals(const std::string& path) const;
    /// Waits until what was written is on the disk.
    bool flush();
    /// Moves behind what another process has appended through the same open file.
    bool catchUp();

    /// Closes the file and gives it its name, where nothing stands yet.
    Placing placeNew(const std::string& path);
    /// Closes the file and gives it its name, in place of a file that may stand there, as a whole and with
    /// its access rights. What is no file stays, which is a fault.
    bool replace(const std::string& path);
    /// Closes the file under a name of its own beside its place, complete for `replace`, which needs no
    /// memory and little else then.
    bool setAside(const std::string& path);

private:
    explicit OutputFile(const std::string& folder);
    void createNamed();
    bool nameTemporarily();
    bool takeRightsOf(const std::string& path);
    bool equals(int other, std::int64_t size) const;
    bool appendRange(int source, std::int64_t offset, std::int64_t length);
    bool fail(std::string_view what, int code);
    bool close();

    std::string folder_; ///< native; ends in a separator, or is empty
    int descriptor_ = -1;
    std::int64_t position_ = 0;
    std::unique_ptr<platform::TemporaryName>
        temporary_; ///< null for a file without a name, or under its real one
    std::string error_;
};

} // namespace orvane
