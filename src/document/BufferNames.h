#pragma once

#include "document/BufferFolder.h"
#include "document/ExportReport.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace orvane {

/// Finds file names for the buffers of one export; those of meshes are free ones. A name that is taken is cut
/// at its last `.`, gets `-` and a counter that starts at 1, and `.bin`; a name changed so may be taken too
/// and is changed again, so that the suffixes pile up: `a.bin`, `a-1.bin`, `a-1-2.bin`. Each wanted name is
/// taken up where it was left, so that many nodes of one name cost no more than as many of different names. A
/// name that the system cannot take becomes `buffer-N.bin`, with the position N of the buffer; the report
/// says so where a person meets the name.
class BufferNames {
public:
    /// The first free name for `wanted`, which ends in `.bin`.
    std::string claim(const std::string& wanted, std::int32_t bufferIndex, const BufferFolder& folder,
                      ExportReport& report);

    /// `wanted` itself, taken or not, unless the system cannot take it.
    std::string usable(const std::string& wanted, std::int32_t bufferIndex, const BufferFolder& folder,
                       ExportReport& report);

private:
    struct Pile {
        std::string name; ///< the last one given out
        std::int32_t counter = 0;
        bool isUnusable = false; ///< this name, and so every longer one, is beyond the system
    };

    std::unordered_map<std::string, Pile> piles_;
};

} // namespace orvane
