#include "document/TextStream.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <vector>

namespace orvane {
namespace {

std::string written(double value) {
    TextStream out;
    out << value;
    return out.text();
}

std::string scientific(float value) {
    TextStream out;
    out.appendScientific(static_cast<double>(value));
    return out.text();
}

TEST(TextStream, WritesDoublesWithSixSignificantDigits) {
    EXPECT_EQ(written(0.75), "0.75");
    EXPECT_EQ(written(1), "1");
    EXPECT_EQ(written(1e-05), "1e-05");
    EXPECT_EQ(written(12.34567), "12.3457");
    EXPECT_EQ(written(127 / 255.0), "0.498039");
    EXPECT_EQ(written(1234567), "1.23457e+06");
    EXPECT_EQ(written(999999), "999999");
    EXPECT_EQ(written(-999999.4), "-999999");
    EXPECT_EQ(written(999999.5), "1e+06");
    EXPECT_EQ(written(-1000000), "-1e+06");
    EXPECT_EQ(written(1e10), "1e+10");
    EXPECT_EQ(written(-0.0), "-0");
    EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(written(-std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(written(1e-300), "1e-300");
}

TEST(TextStream, WritesBoundsWithNineDigits) {
    EXPECT_EQ(scientific(-1), "-1.00000000e+00");
    EXPECT_EQ(scientific(0), "0.00000000e+00");
    EXPECT_EQ(scientific(0.1f), "1.00000001e-01");
    EXPECT_EQ(scientific(std::numeric_limits<float>::min()), "1.17549435e-38");
    EXPECT_EQ(scientific(std::numeric_limits<float>::max()), "3.40282347e+38");
}

TEST(TextStream, HandsPiledUpTextToItsDrainInOrder) {
    std::string drained;
    std::vector<std::size_t> sizes;
    TextStream out;
    out.drainTo([&](std::string_view text) {
        drained += text;
        sizes.push_back(text.size());
    });
    std::string expected;
    for (std::int32_t i = 0; i < 100'000; ++i) {
        out << i << "\n";
        out.drainIfLarge();
        expected += std::to_string(i) + "\n";
    }
    EXPECT_GT(sizes.size(), 1u);
    out.drainAll();
    EXPECT_EQ(drained, expected);
    EXPECT_TRUE(out.text().empty());
}

} // namespace
} // namespace orvane
