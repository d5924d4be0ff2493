#pragma once

#include "document/BufferFolder.h"
#include "document/ExportReport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane {

/// A range of bytes in a file.
struct FileRange {
    std::int64_t offset = 0;
    std::int64_t length = 0;
};

/// A folder that exists only as names and ranges of one growing nameless file: what the buffers of a `.glb`
/// go through. A later file of the same name stands in the place of the earlier one. The last contents wait
/// in memory until there are enough of them for one large write, so that what comes last (the only mesh of a
/// part) never goes through the file.
class WorkingBufferFolder : public BufferFolder {
public:
    /// The working file lies in the file system of `folder`; `report` gets the first fault and outlives the
    /// object.
    WorkingBufferFolder(const std::string& folder, ExportReport& report);

    bool contains(const std::string& name) const override { return ranges_.contains(name); }
    void write(const std::string& name, BufferContent content, Existing existing) override;
    bool showsNames() const override { return false; }
    void settle() override;

    /// Where the bytes of the file of that name stand; nothing when there is none.
    std::optional<FileRange> find(const std::string& name) const;
    /// Appends a whole file, without a name. A fault goes to the report.
    FileRange append(const OutputFile& file);
    /// Appends the bytes of `range` to `target`. A range begins and ends where contents do.
    void copyTo(OutputFile& target, const FileRange& range) const;

private:
    void writeHeld();
    void reportFault();

    std::string folder_;
    ExportReport& report_;
    OutputFile file_;
    std::unordered_map<std::string, FileRange> ranges_;
    std::vector<BufferContent> held_; ///< not yet written; they follow the end of the file
    std::int64_t heldSize_ = 0;
};

} // namespace orvane
