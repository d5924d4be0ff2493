#include "platform/Pictures.h"

#include "platform/FileCalls.h"
#include "platform/PictureDamage.h"

#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using namespace std::string_literals;

struct Pictures : testing::Test {
    PictureReading converted(const std::string& name, const std::string& bytes) {
        writeFile(disk / name, bytes);
        png.emplace(OutputFile::create(disk.path().string()));
        return convertPicture(disk / name, *png);
    }
    /// Of a file that is JPEG or PNG, or claims to be.
    std::string fault(const std::string& bytes) { return converted("picture", bytes).fault; }

    TemporaryFolder disk;
    std::optional<OutputFile> png;
};

/// A TGA picture of 5 x 3 pixels, 24 bits each.
std::string tga(char type, const std::string& behind) {
    return "\x03\0"s + type + "\0\0\0\0\0\0\0\0\0\x05\0\x03\0\x18\0"s + "id." + behind;
}

const std::string kRawTga = tga('\x02', std::string(45, '\x40'));
/// Packets of a run of 6, 4 single ones, and a run of 5.
const std::string kRunTga = tga('\x0A', "\x85rgb\x03" + std::string(12, '\x40') + "\x84rgb");

TEST_F(Pictures, OfPngAreWholeToTheLastBit) {
    const std::string whole = pngPicture(std::string(70'000, 'x'));
    EXPECT_EQ(converted("a.png", whole + "tail").conversion, PictureConversion::notNeeded);
    EXPECT_EQ(fault(whole.substr(0, 300) + whole.substr(500)), "is cut short or damaged");
    EXPECT_EQ(fault(whole.substr(0, whole.size() - 1)), "is cut short");
    EXPECT_EQ(fault(pngPicture("").substr(0, 8) + pngChunk("IEND", "")), "is damaged") << "no header";
    EXPECT_EQ(fault(pngPicture("").substr(0, 33) + pngChunk("IEND", "")), "is damaged") << "no pixels";

    const std::string small = pngPicture("small");
    EXPECT_EQ(fault(small), "");
    for (std::size_t at = 8; at < small.size(); ++at) {
        std::string flipped = small;
        flipped[at] ^= '\x80';
        EXPECT_NE(fault(flipped), "") << at;
        EXPECT_NE(fault(small.substr(0, at)), "") << at;
    }
}

TEST_F(Pictures, OfJpegAreWholeFromStartToEnd) {
    const std::string preview = jpegSegment('\xE1', "preview\xFF\xD9");
    const std::string whole = "\xFF\xD8" + preview + "\xFF\xFF\x01" + jpegPicture("").substr(2);
    EXPECT_EQ(converted("a.jpg", whole + std::string(60'000, 'x')).conversion, PictureConversion::notNeeded);
    for (std::size_t at = 2; at < whole.size(); ++at) {
        EXPECT_NE(fault(whole.substr(0, at)), "") << at;
    }
    EXPECT_EQ(fault(whole.substr(0, whole.size() - 1)), "is cut short");
    EXPECT_EQ(fault("\xFF\xD8\xFF\xE1\0\x01"s + whole), "is damaged") << "a length below its own";
    EXPECT_EQ(fault("\xFF\xD8" + preview + "xx" + preview), "is damaged");
}

TEST_F(Pictures, OfTgaHoldAllPixels) {
    const std::string mapped = "\0\x01\x01\0\0\x02\0\x18\0\0\0\0\x02\0\x02\0\x08\0"s + "bgrbgr" + "\0\1\1\0"s;
    for (const std::string& whole : {kRawTga, kRunTga, mapped}) {
        EXPECT_FALSE(platform::isTargaCutShort(whole));
        EXPECT_FALSE(platform::isTargaCutShort(whole + "footer"));
        for (std::size_t size = 0; size < whole.size(); ++size) {
            EXPECT_TRUE(platform::isTargaCutShort(whole.substr(0, size))) << size;
        }
        const PictureReading reading = converted("a.tga", whole);
        EXPECT_EQ(reading.conversion, PictureConversion::converted);
        EXPECT_EQ(reading.fault, "");
    }
}

TEST_F(Pictures, ThatAreCutShortAreConvertedAndTold) {
    const std::string ppm = "P6 4 4 255\n" + std::string(48, '\x40');
    const std::vector<std::pair<std::string, std::string>> wholes = {{"a.bmp", smallBmp()},
                                                                     {"a.tga", kRawTga},
                                                                     {"run.tga", kRunTga},
                                                                     {"a.dds", ddsPicture()},
                                                                     {"a.ppm", ppm}};
    for (const auto& [name, whole] : wholes) {
        for (const std::size_t missing : {0U, 1U, 20U}) {
            const PictureReading reading = converted(name, whole.substr(0, whole.size() - missing));
            EXPECT_EQ(reading.conversion, PictureConversion::converted) << name;
            EXPECT_EQ(reading.fault, missing == 0 ? "" : "is cut short") << name << " without " << missing;
            EXPECT_GT(png->position(), 60);
            EXPECT_TRUE(png->write("behind it"));
        }
    }
    EXPECT_EQ(converted("header.tga", kRawTga.substr(0, 18)).fault, "is cut short");
}

TEST_F(Pictures, AreConvertedWhereTheProcessHasNoOutput) {
    const int output = dup(STDOUT_FILENO);
    close(STDOUT_FILENO);
    const PictureReading reading = converted("a.bmp", smallBmp());
    const std::int64_t length = png->position();
    png.reset();
    dup2(output, STDOUT_FILENO);
    close(output);
    EXPECT_EQ(reading.conversion, PictureConversion::converted);
    EXPECT_GT(length, 60);
}

TEST_F(Pictures, AreNotUsedWhenTheirPngFileCannotBeWritten) {
    writeFile(disk / "a.bmp", smallBmp());
    OutputFile full = OutputFile::create(disk.path().string());
    platform::fileCallListener = [](platform::FileCall call) {
        return call == platform::FileCall::write ? platform::FileFault::full : platform::FileFault::none;
    };
    const PictureReading reading = convertPicture(disk / "a.bmp", full);
    platform::fileCallListener = nullptr;
    EXPECT_EQ(reading.conversion, PictureConversion::unreadable);
    EXPECT_EQ(reading.fault, "cannot be converted: the PNG file cannot be written: No space left on device");
    OutputFile none = OutputFile::create(disk / "no such folder");
    EXPECT_EQ(
        convertPicture(disk / "a.bmp", none).fault.find("cannot be converted: the PNG file cannot be cr"),
        0U);
    EXPECT_EQ(convertPicture(disk / "gone.bmp", full).fault, "cannot be read: No such file or directory");
}

} // namespace
} // namespace orvane
