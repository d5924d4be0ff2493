#pragma once

#include "model/records/ReadingOptions.h"

#include <chrono>
#include <cstdint>
#include <ostream>

namespace orvane::cli {

/// Tells the seconds since it was made.
class Stopwatch {
public:
    double seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// What an export took, in seconds by the clock where `ReadingCosts` does not say otherwise.
struct Timings {
    ReadingCosts reading;
    double building = 0;          ///< records and buffers
    double writing = 0;           ///< pictures, the text, and putting the files in place
    double total = 0;             ///< all of it, with what none of the others counts
    std::uint64_t peakMemory = 0; ///< bytes
};

/// Prints a line for each of them.
void printTimings(std::ostream& out, const Timings& timings);

} // namespace orvane::cli
