#pragma once

#include "platform/OutputFile.h"

#include <cstdint>
#include <string_view>

namespace orvane {

/// Puts a binary glTF container together in one pass: a header, a JSON chunk, a BIN chunk, each length
/// patched in when it is known. All integers are little endian and 32 bits wide; chunks are padded to
/// multiples of 4 bytes. The parts are called in the order of their declaration. A fault of the file ends
/// every later step quietly.
class GlbWriter {
public:
    /// Writes to `file`, which outlives the writer.
    explicit GlbWriter(OutputFile& file) : file_(file) {}

    void writeHeader();
    void beginJsonChunk();
    void writeJson(std::string_view text) { file_.write(text); }
    /// Pads with blanks.
    void endJsonChunk();
    void beginBinChunk();
    /// Pads with zero bytes.
    void endBinChunk();
    /// Patches the length of the whole file in, which the caller keeps below 4 GiB.
    void finish();

private:
    void beginChunk(std::uint32_t type);
    void endChunk(std::string_view padding);

    OutputFile& file_;
    std::int64_t chunkOffset_ = 0; ///< where the length of the open chunk stands
};

} // namespace orvane
