#include "cli/OneLine.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace orvane::cli {
namespace {

std::string printed(const std::string& text) {
    std::ostringstream out;
    printOnOneLine(out, "orvane: ", text);
    return out.str();
}

TEST(OneLine, HoldsNoControlCharacters) {
    EXPECT_EQ(printed("a\x1b[1mb\n\x7F\xC2\x9Bm \xC3\x9B \xC2\xA0 \xC2"),
              "orvane: a?[1mb???m \xC3\x9B \xC2\xA0 \xC2\n");
    // The two bytes of one, wherever a longer text is cut into pieces.
    for (std::size_t length = 509; length < 514; ++length) {
        const std::string before(length, 'n');
        EXPECT_EQ(printed(before + "\xC2\x85" + before), "orvane: " + before + "?" + before + "\n");
    }
}

} // namespace
} // namespace orvane::cli
