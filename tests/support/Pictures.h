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

/// What looks like a whole JPEG or PNG picture to whoever does not decode it; `inside` tells them apart.
inline std::string jpegPicture(const std::string& inside) {
    return "\xFF\xD8" + inside + "\xFF\xD9";
}
inline std::string pngPicture(const std::string& inside) {
    return "\x89PNG\r\n\x1A\n" + inside + std::string(4, '\0') + "IEND\xAE\x42\x60\x82";
}

} // namespace orvane
