#include "cli/OptionTexts.h"

#include <gtest/gtest.h>

namespace orvane::cli {
namespace {

TEST(OptionTexts, TakesLengthsWithUnitsAndSharesOfABox) {
    const auto metres = [](std::string_view text) {
        const auto deflection = deflectionFromText(text);
        return deflection && deflection->index() == 1 ? std::get<Metres>(*deflection).value : -1;
    };
    EXPECT_DOUBLE_EQ(metres("0.1mm"), 0.0001);
    EXPECT_DOUBLE_EQ(metres("0.1 \tmm"), 0.0001);
    EXPECT_DOUBLE_EQ(metres(".5 m"), 0.5);
    EXPECT_DOUBLE_EQ(metres("5e-5"), 0.00005);
    EXPECT_DOUBLE_EQ(metres("5e-2mm"), 0.00005);
    const auto share = [](std::string_view text) {
        const auto deflection = deflectionFromText(text);
        return deflection && deflection->index() == 0 ? std::get<ShareOfBox>(*deflection).value : -1;
    };
    EXPECT_EQ(share("0.1%"), std::get<ShareOfBox>(MeshingOptions().deflection).value);
    EXPECT_EQ(share("100 %"), 1);
    for (const char* wrong :
         {"",       " ",      "mm",      "%",     "0",      "0mm",      "0%",  "-1",    "-1%",
          "100.1%", "1,5mm",  "0.1 mmm", "1mm2",  "0.1MM",  "1 m m",    "1in", "0x1p3", "1e",
          "inf",    "nan mm", "1e400",   "1e300", "1e-400", "1e-323mm", " 1",  "1%%"}) {
        EXPECT_FALSE(deflectionFromText(wrong)) << '"' << wrong << '"';
    }
    EXPECT_FALSE(deflectionFromText({"1\0", 2}));
}

TEST(OptionTexts, TakesNumbersWithinTheirBounds) {
    EXPECT_EQ(angleFromText("0.5"), 0.5);
    EXPECT_EQ(angleFromText("180"), 180);
    EXPECT_EQ(jobsFromText("1"), 1u);
    EXPECT_EQ(jobsFromText("1024"), 1024u);
    for (const char* wrong : {"", "0", "-1", "180.1", "nan", "inf", "20deg", "20 ", "1,5", "0x10"}) {
        EXPECT_FALSE(angleFromText(wrong)) << '"' << wrong << '"';
    }
    for (const char* wrong : {"", "0", "-1", "1025", "4294967297", "1.5", "2x", "all", " 2"}) {
        EXPECT_FALSE(jobsFromText(wrong)) << '"' << wrong << '"';
    }
}

} // namespace
} // namespace orvane::cli
