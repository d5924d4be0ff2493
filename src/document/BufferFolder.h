#pragma once

#include "document/GeomStream.h"
#include "platform/OutputFile.h"
#include "platform/RecycledMemory.h"
#include "platform/StagedFolder.h"

#include <memory_resource>
#include <string>
#include <vector>

namespace orvane {

/// The bytes of one buffer: pieces of memory that stand behind one another in its file, and the triangles or
/// other numbers that own them. Other pieces live as long as the process.
struct BufferContent {
    GeomStreams streams;
    std::vector<Bytes> pieces;
    std::vector<FloatBlocks> numbers{};
};

/// The folder into which the buffers of an export go, each under its name.
class BufferFolder {
public:
    BufferFolder() = default;
    BufferFolder(const BufferFolder&) = delete;
    BufferFolder& operator=(const BufferFolder&) = delete;
    virtual ~BufferFolder() = default;

    /// Where contents take their memory from. It serves the many blocks of like size again and again.
    std::pmr::memory_resource& memory() { return memory_; }

    /// Whether a file of that name is there.
    virtual bool contains(const std::string& name) const = 0;
    /// Writes the content as the file of that name, in place of one that this export has written. What was in
    /// the folder before stays or gives way; where it stays, it is a fault that it is there. Fails quietly:
    /// the fault goes to the export's report, and later calls do nothing.
    virtual void write(const std::string& name, BufferContent content, Existing existing) = 0;
    /// Gives back the memory that earlier contents still hold; called before the next node's triangles are
    /// gathered.
    virtual void settle() {}
    /// Whether a person meets the names of the files.
    virtual bool showsNames() const = 0;

private:
    RecycledMemory memory_;
};

} // namespace orvane
