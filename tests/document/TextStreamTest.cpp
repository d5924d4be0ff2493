#include "document/TextStream.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

TEST(TextStream, WritesDoublesWithSixSignificantDigits) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    TextStream out;
    for (const double value : {0.75, 1.0, 1e-05, 12.34567, 127 / 255.0, 1234567.0, 999999.0, -999999.4,
                               999999.5, -1e6, 1e10, -0.0, kInfinity, -kNan, 1e-300}) {
        out << value << " ";
    }
    EXPECT_EQ(out.text(), "0.75 1 1e-05 12.3457 0.498039 1.23457e+06 999999 -999999 1e+06 "
                          "-1e+06 1e+10 -0 inf nan 1e-300 ");
}

TEST(TextStream, WritesBoundsWithNineDigits) {
    TextStream out;
    for (const float value :
         {-1.0f, 0.0f, 0.1f, std::numeric_limits<float>::min(), std::numeric_limits<float>::max()}) {
        out.appendScientific(static_cast<double>(value));
        out << " ";
    }
    EXPECT_EQ(out.text(), "-1.00000000e+00 0.00000000e+00 1.00000001e-01 1.17549435e-38 3.40282347e+38 ");
}

TEST(TextStream, HandsPiledUpTextToItsDrainInOrder) {
    std::string drained;
    int drains = 0;
    TextStream out;
    out.drainTo([&](std::string_view text) {
        drained += text;
        ++drains;
    });
    std::string expected;
    for (std::int32_t i = 0; i < 100'000; ++i) {
        out << i << "\n";
        out.drainIfLarge();
        expected += std::to_string(i) + "\n";
    }
    EXPECT_GT(drains, 1);
    out.drainAll();
    EXPECT_EQ(drained, expected);
    EXPECT_TRUE(out.text().empty());
}

} // namespace
} // namespace orvane
