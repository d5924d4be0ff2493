#include "appearance/AppearanceFile.h"

#include "appearance/FallbackTextures.h"
#include "appearance/ShaderClasses.h"

#include <gtest/gtest.h>

namespace orvane::appearance {
namespace {

TEST(AppearanceFile, ReadsTheWordBehindAKeyword) {
    const auto shader = [](std::string_view text) { return ReadKeywordToken(text, "\"tf_shader\""); };
    EXPECT_EQ(shader("\"a\" b\r\n\"tf_shader\" \t\r\n polishedbrass\t1 \"tf_shader\" other"),
              "polishedbrass");
    EXPECT_EQ(shader("\"tf_shader\"glued"), "glued");
    EXPECT_EQ(shader("\"tf_shader\" \"quoted one\""), "\"quoted");
    EXPECT_EQ(shader("\"tf_shader\" last"), "last");
    EXPECT_EQ(shader("\"tf_shader\" \n"), "");
    EXPECT_EQ(shader("tf_shader brass"), "") << "the keyword has its quotes";
}

TEST(AppearanceFile, ReadsWhatStandsInQuotesBehindAKeyword) {
    const auto bump = [](std::string_view text) { return ReadKeywordQuoted(text, "\"bumpTexture\""); };
    EXPECT_EQ(bump("\"bumpTexture\" map \"a b.dds\" \"c\""), "a b.dds");
    EXPECT_EQ(bump("\"bumpTexture\" \"open\nend"), "open\nend");
    EXPECT_EQ(bump("\"bumpTexture\" none"), "");
}

TEST(AppearanceFile, TakesTheBumpTextureFromEitherKeyword) {
    const auto bump = [](std::string_view text) { return readAppearanceText(text).bumpTexture; };
    EXPECT_EQ(bump("\"bumpTexture\" \"images/shaders/x.dds\""), "images\\shaders\\x.dds");
    EXPECT_EQ(bump("\"bumpTexture\" \"\" color texture \"bump_file_texture\" kind \"one/two\""), "one\\two");
    EXPECT_EQ(bump("color texture \"bump_file_texture\" \"unfinished"), "");
    EXPECT_EQ(bump("color texture \"bump_file_texture\"\"no blank\""), "");
}

TEST(AppearanceFile, TakesTheFirstOfThreeChannelsAsGrey) {
    const auto grey = [](const std::string& channels) {
        return readAppearanceText("\"col1\" " + channels).grey;
    };
    EXPECT_EQ(grey("0.2,0.9,0.9"), 0x33);
    EXPECT_EQ(grey("1.5,0,0"), 0x7E) << "382 without its high bits";
    EXPECT_EQ(grey("-0.1,0,0"), 0xE7) << "-25 without its high bits";
    EXPECT_EQ(grey("+.5e0x,,"), 127);
    for (const char* noNumber : {"word,1,1", "1e30,1,1", "nan,1,1"}) {
        EXPECT_EQ(grey(noNumber), 0) << noNumber;
    }
    for (const char* otherwise : {"", "1,1", "1,1,1,1", "1, 1, 1"}) { // a word ends at a blank
        EXPECT_EQ(grey(otherwise), std::nullopt) << otherwise;
    }
}

TEST(ShaderClasses, AreFoundByExactNamesOnly) {
    EXPECT_EQ(ShaderClassOf("brushedsteel"), ShaderClass::metal);
    EXPECT_EQ(ShaderClassOf("PlasticPolystyrene"), ShaderClass::plastic);
    EXPECT_EQ(ShaderClassOf("satinfinishsatinwood "), ShaderClass::organic) << "the blank is part of it";
    for (const char* name :
         {"Brushedsteel", "\"brushedsteel\"", "plasticpolystyrene", "satinfinishsatinwood", ""}) {
        EXPECT_EQ(ShaderClassOf(name), ShaderClass::unknown) << name;
    }
}

TEST(FallbackTextures, TakeTheFirstRowWhoseKeyTheNameHolds) {
    const std::string textures = "h\\data\\Images\\textures\\";
    EXPECT_EQ(fallbackTexture("Blue Marble", "h"),
              textures + "stone\\architectural\\marble\\marble blue.jpg");
    EXPECT_EQ(fallbackTexture("sPlAsh", "h"), textures + "organic\\wood\\ash\\polished ash.jpg");
    EXPECT_EQ(fallbackTexture("blue rough marble", "h"), "");
    const std::string finishes = "h\\data\\Images\\shaders\\surfacefinish\\";
    EXPECT_EQ(fallbackSurfaceFinish("satin nickel", "h"), finishes + "satinwood_n.dds");
    EXPECT_EQ(fallbackSurfaceFinish("Brushed Satin", "h"), finishes + "_brushed.dds");
    EXPECT_EQ(fallbackSurfaceFinish("steel", "h"), "");
}

} // namespace
} // namespace orvane::appearance
