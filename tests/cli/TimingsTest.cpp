#include "cli/Timings.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orvane::cli {
namespace {

TEST(Timings, AreAlignedLines) {
    std::ostringstream out;
    printTimings(out, {.reading = {.parsing = 8.123, .transferring = 0, .meshing = 12345.678},
                       .building = 0.006,
                       .writing = 61,
                       .total = 100.5,
                       .peakMemory = 12'345'600'000});
    EXPECT_EQ(out.str(), "orvane: parsing           8.12 s\n"
                         "orvane: transferring      0.00 s\n"
                         "orvane: meshing       12345.68 s\n"
                         "orvane: building          0.01 s\n"
                         "orvane: writing          61.00 s\n"
                         "orvane: total           100.50 s\n"
                         "orvane: peak memory      12346 MB\n");
}

} // namespace
} // namespace orvane::cli
