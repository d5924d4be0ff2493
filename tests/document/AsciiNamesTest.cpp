#include "document/AsciiNames.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(ToAsciiName, KeepsAsciiButForTheSignsThatWouldBreakTheText) {
    for (char16_t unit = 0; unit < 0x80; ++unit) {
        const bool isFolded = std::u16string_view(u";\":\\/").find(unit) != std::u16string_view::npos;
        const std::string expected(1, isFolded ? '_' : static_cast<char>(unit));
        EXPECT_EQ(toAsciiName(std::u16string(1, unit)), expected) << "unit " << static_cast<int>(unit);
    }
}

TEST(ToAsciiName, FoldsLettersAndSignsByTheTable) {
    EXPECT_EQ(toAsciiName(u"ÀĂßČĚĢĦİĴĶŊØŘÞŠŦŲŴŸ¥Ž"), "AABCEGHIJKNORRSTUWYYZ");
    EXPECT_EQ(toAsciiName(u"àăæç©¢ðďěģħįĵķŋ°øŗşšŧųŵÿž"), "aaacccddeghijknoorsstuwyz");
    EXPECT_EQ(toAsciiName(u"¹²³«»×±÷®¼¾½º¤ª£"), "123<>x_________L");
    EXPECT_EQ(toAsciiName(u"ĺļľŀłđ"), "LLLLLD") << "these stand in two rows, and the first one counts";
}

TEST(ToAsciiName, CutsEveryOtherUnitToItsLowByte) {
    EXPECT_EQ(toAsciiName(u"Деталь"), "\x14\x35\x42\x30\x3B\x4C");
    EXPECT_EQ(toAsciiName(u"\u0222\u0200"), std::string("\"\0", 2));
    EXPECT_EQ(toAsciiName(u"\U0001F600"), std::string("\x3D\x00", 2)) << "two units, each for itself";
}

TEST(ToAsciiPath, KeepsTheSlashThatSeparatesLevels) {
    EXPECT_EQ(toAsciiPath(u"Ä/b:c/d\\e"), "A/b_c/d_e");
}

TEST(FileSafeName, ReplacesExactlyEightCharacters) {
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        const bool isReplaced = byte != 0 && std::string("\\/\"'*:$ ").find(character) != std::string::npos;
        std::string name(1, character);
        fileSafeName(name);
        EXPECT_EQ(name, std::string(1, isReplaced ? '_' : character)) << "byte " << byte;
    }
}

} // namespace
} // namespace orvane
