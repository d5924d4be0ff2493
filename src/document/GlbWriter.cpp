#include "document/GlbWriter.h"

#include <array>

namespace orvane {

namespace {

constexpr std::uint32_t kMagic = 0x46546C67; // "glTF"
constexpr std::uint32_t kVersion = 2;
constexpr std::uint32_t kJsonChunk = 0x4E4F534A; // "JSON"
constexpr std::uint32_t kBinChunk = 0x004E4942;  // "BIN" and a zero byte
constexpr std::int64_t kTotalLengthOffset = 8;
constexpr std::int64_t kChunkHeaderSize = 8;

template <std::size_t N>
void writeNumbers(OutputFile& file, const std::array<std::uint32_t, N>& numbers) {
    const Bytes bytes = std::as_bytes(std::span(numbers));
    file.write(std::span(&bytes, 1));
}

void overwriteNumber(OutputFile& file, std::int64_t offset, std::int64_t value) {
    const auto number = static_cast<std::uint32_t>(value);
    file.overwrite(offset, std::as_bytes(std::span(&number, 1)));
}

} // namespace

void GlbWriter::writeHeader() {
    writeNumbers(file_, std::array{kMagic, kVersion, std::uint32_t{0}});
}

void GlbWriter::beginJsonChunk() {
    beginChunk(kJsonChunk);
}

void GlbWriter::endJsonChunk() {
    endChunk("   ");
}

void GlbWriter::beginBinChunk() {
    beginChunk(kBinChunk);
}

void GlbWriter::endBinChunk() {
    endChunk(std::string_view("\0\0\0", 3));
}

void GlbWriter::finish() {
    overwriteNumber(file_, kTotalLengthOffset, file_.position());
}

void GlbWriter::beginChunk(std::uint32_t type) {
    chunkOffset_ = file_.position();
    writeNumbers(file_, std::array{std::uint32_t{0}, type});
}

void GlbWriter::endChunk(std::string_view padding) {
    std::int64_t length = file_.position() - chunkOffset_ - kChunkHeaderSize;
    if (length % 4 != 0) {
        const std::int64_t missing = 4 - length % 4;
        file_.write(padding.substr(0, static_cast<std::size_t>(missing)));
        length += missing;
    }
    overwriteNumber(file_, chunkOffset_, length);
}

} // namespace orvane
