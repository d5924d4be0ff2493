#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// `value` in `bytes` bytes, little endian.
inline std::string littleEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return text;
}

/// A BMP picture of 24 bits a pixel that claims this size, and holds `pixels` bytes of the value `grey`.
inline std::string bmpPicture(std::uint32_t width, std::uint32_t height, std::size_t pixels,
                              char grey = '\x40') {
    return "BM" + littleEndian(static_cast<std::uint32_t>(54 + pixels), 4) + littleEndian(0, 4) +
           littleEndian(54, 4) + littleEndian(40, 4) + littleEndian(width, 4) + littleEndian(height, 4) +
           littleEndian(1, 2) + littleEndian(24, 2) + std::string(24, '\0') + std::string(pixels, grey);
}

/// A whole one of 4 x 4 pixels.
inline std::string smallBmp(char grey = '\x40') {
    return bmpPicture(4, 4, 48, grey);
}

/// A DDS picture of 32 bits a pixel, uncompressed, that claims this size and holds 4 x 4 blue pixels.
inline std::string ddsPicture(std::uint32_t width = 4, std::uint32_t height = 4) {
    std::string pixels;
    for (int i = 0; i < 16; ++i) {
        pixels += "\xFF\x80\x80\xFF";
    }
    return "DDS " + littleEndian(124, 4) + littleEndian(0x100F, 4) + littleEndian(height, 4) +
           littleEndian(width, 4) + littleEndian(4 * width, 4) + std::string(52, '\0') + littleEndian(32, 4) +
           littleEndian(0x41, 4) + littleEndian(0, 4) + littleEndian(32, 4) + littleEndian(0xFF0000, 4) +
           littleEndian(0xFF00, 4) + littleEndian(0xFF, 4) + littleEndian(0xFF000000, 4) +
           littleEndian(0x1000, 4) + std::string(16, '\0') + pixels;
}

inline std::string bigEndian(std::size_t value, int bytes) {
    std::string text;
    while (bytes-- > 0) {
        text += static_cast<char>(value >> (8 * bytes) & 0xFF);
    }
    return text;
}

/// With its length and its checksum.
inline std::string pngChunk(const std::string& type, const std::string& data) {
    std::uint32_t sum = ~0U;
    for (const char byte : type + data) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return bigEndian(data.size(), 4) + type + data + bigEndian(~sum, 4);
}

/// A whole PNG picture of one black pixel; `inside`, which it holds as a note, tells them apart.
inline std::string pngPicture(const std::string& inside) {
    using namespace std::string_literals;
    return "\x89PNG\r\n\x1A\n" + pngChunk("IHDR", "\0\0\0\1\0\0\0\1\x08\0\0\0\0"s) +
           pngChunk("tEXt", "n\0"s + inside) +
           pngChunk("IDAT", "\x78\x01\x01\x02\0\xFD\xFF\0\0\0\x02\0\x01"s) + pngChunk("IEND", "");
}

inline std::string jpegSegment(char marker, const std::string& data) {
    return std::string("\xFF") + marker + bigEndian(data.size() + 2, 2) + data;
}

/// What looks like a whole JPEG picture to whoever does not decode it.
inline std::string jpegPicture(const std::string& inside) {
    return "\xFF\xD8" + jpegSegment('\xFE', inside) + jpegSegment('\xDA', "") + "scan\xFF\xD9";
}

} // namespace orvane
