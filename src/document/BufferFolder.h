#pragma once

#include "platform/Files.h"

#include <span>
#include <string>

namespace orvane {

/// The folder into which the buffers of an export go, each under its name.
class BufferFolder {
public:
    virtual ~BufferFolder() = default;

    /// Whether a file of that name is there.
    virtual bool contains(const std::string& name) const = 0;
    /// Writes the pieces one behind the other as the file of that name, in place of one that is there. Fails quietly: the
    /// fault goes to the export's report, and later calls do nothing.
    virtual void write(const std::string& name, std::span<const Bytes> pieces) = 0;
    /// Whether a person meets the names of the files.
    virtual bool showsNames() const = 0;
};

} // namespace orvane
