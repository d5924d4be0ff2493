#include "model/step/StlFile.h"

#include "model/records/ModelError.h"
#include "model/records/PlaneNormals.h"
#include "platform/AsciiCase.h"

#include <bit>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::step {

namespace {

/// A binary file: 80 bytes of anything, the number of triangles, then 50 bytes each: a normal, three corners,
/// two bytes. All little-endian, all numbers 32 bits.
constexpr std::size_t kHeaderSize = 84;
constexpr std::size_t kTriangleSize = 50;

std::uint32_t littleEndian(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
    }
    return value;
}

std::vector<float> readBinary(std::string_view bytes) {
    std::vector<float> positions;
    const std::size_t count = littleEndian(bytes, 80);
    positions.reserve(9 * count);
    for (std::size_t triangle = 0; triangle < count; ++triangle) {
        for (std::size_t number = 3; number < 12; ++number) {
            positions.push_back(std::bit_cast<float>(
                littleEndian(bytes, kHeaderSize + triangle * kTriangleSize + 4 * number)));
        }
    }
    return positions;
}

/// Words of a text, and the line that each stands in.
class Words {
public:
    explicit Words(std::string_view text) : text_(text) {}

    /// The next word; empty at the end.
    std::string_view next() {
        constexpr std::string_view kBlanks = " \t\r\n\f\v";
        while (at_ < text_.size() && kBlanks.find(text_[at_]) != std::string_view::npos) {
            line_ += text_[at_++] == '\n' ? 1u : 0u;
        }
        const std::size_t end = std::min(text_.find_first_of(kBlanks, at_), text_.size());
        const std::string_view word = text_.substr(at_, end - at_);
        at_ = end;
        return word;
    }

    void skipLine() { at_ = std::min(text_.find('\n', at_), text_.size()); }

    std::size_t line() const { return line_; }

private:
    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
};

bool isWord(std::string_view word, std::string_view expected) {
    return word.size() == expected.size() && std::equal(word.begin(), word.end(), expected.begin(),
                                                        [](char a, char b) { return asciiLower(a) == b; });
}

/// The loops of `facet normal X Y Z outer loop, three times vertex X Y Z, endloop endfacet`.
class AsciiReader {
public:
    AsciiReader(const std::filesystem::path& file, std::string_view text) : file_(file), words_(text) {}

    std::vector<float> read() {
        std::vector<float> positions;
        bool isInSolid = false;
        for (std::string_view word = words_.next(); !word.empty() || isInSolid; word = words_.next()) {
            if (!isInSolid) {
                expect(word, "solid");
                words_.skipLine(); // a name
                isInSolid = true;
            } else if (isWord(word, "endsolid")) {
                words_.skipLine();
                isInSolid = false;
            } else {
                expect(word, "facet");
                readFacet(positions);
            }
        }
        return positions;
    }

private:
    void readFacet(std::vector<float>& positions) {
        expect(words_.next(), "normal");
        for (int i = 0; i < 3; ++i) {
            words_.next(); // often none at all, or `nan`
        }
        expect(words_.next(), "outer");
        expect(words_.next(), "loop");
        for (int corner = 0; corner < 3; ++corner) {
            expect(words_.next(), "vertex");
            for (int i = 0; i < 3; ++i) {
                positions.push_back(readNumber(words_.next()));
            }
        }
        expect(words_.next(), "endloop");
        expect(words_.next(), "endfacet");
    }

    void expect(std::string_view word, std::string_view expected) const {
        if (!isWord(word, expected)) {
            refuse(word, expected);
        }
    }

    float readNumber(std::string_view word) const {
        double value = 0;
        const std::string_view digits = word.starts_with('+') ? word.substr(1) : word;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error != std::errc() || end != digits.data() + digits.size()) {
            refuse(word, "a number");
        }
        return static_cast<float>(value);
    }

    [[noreturn]] void refuse(std::string_view word, std::string_view expected) const {
        std::string found = word.empty() ? "the end of the file" : "'";
        for (const char c : word.substr(0, 20)) {
            found += c < ' ' || c > '~' ? '.' : c;
        }
        found += word.empty() ? "" : "'";
        throw ModelError(file_.string() + ": line " + std::to_string(words_.line()) + ": found " + found +
                         ", expected " + std::string(expected));
    }

    const std::filesystem::path& file_;
    Words words_;
};

} // namespace

FaceRecord readStlFile(const std::filesystem::path& file) {
    std::error_code noFile;
    std::ifstream stream(file, std::ios::binary);
    if (!stream || !std::filesystem::is_regular_file(file, noFile)) {
        throw ModelError(file.string() + ": found no file that can be opened, expected an STL file");
    }
    const std::string bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    const std::size_t binarySize =
        bytes.size() < kHeaderSize ? 0 : kHeaderSize + kTriangleSize * std::size_t{littleEndian(bytes, 80)};
    FaceRecord face;
    // The size tells, not the first word: there are binary files that begin with `solid`.
    if (binarySize != 0 && bytes.size() == binarySize) {
        face.positions = readBinary(bytes);
    } else if (std::string_view text = bytes; isWord(Words(text).next(), "solid")) {
        face.positions = AsciiReader(file, text).read();
    } else {
        throw ModelError(file.string() + ": found " + std::to_string(bytes.size()) + " bytes, expected " +
                         (binarySize == 0
                              ? "an STL file: 'solid', or at least 84 bytes"
                              : std::to_string(binarySize) + " by the number of triangles that it gives"));
    }
    if (face.positions.empty()) {
        throw ModelError(file.string() + ": found no triangle, expected at least one");
    }
    face.normals = planeNormals(face.positions);
    return face;
}

} // namespace orvane::step
