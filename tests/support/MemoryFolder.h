#pragma once

#include "document/BufferFolder.h"

#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace orvane {

/// A folder in memory, whose files a test can look into.
class MemoryFolder : public BufferFolder {
public:
    bool contains(const std::string& name) const override { return files.contains(name); }
    bool showsNames() const override { return true; }
    void write(const std::string& name, BufferContent content, Existing) override {
        std::string& file = files[name];
        file.clear();
        for (const Bytes piece : content.pieces) {
            file.append(reinterpret_cast<const char*>(piece.data()), piece.size());
        }
    }

    /// The values of type `Value` that stand in a file from `offset` on.
    template <class Value>
    std::vector<Value> values(const std::string& name, std::size_t offset, std::size_t count) const {
        std::vector<Value> found(count);
        std::memcpy(found.data(), files.at(name).data() + offset, count * sizeof(Value));
        return found;
    }

    std::map<std::string, std::string> files;
};

} // namespace orvane
