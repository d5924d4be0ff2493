#include "ProcessMemory.h"

#include <cstddef>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <string>

namespace orvane {

namespace {

/// A line of Linux' /proc/self/status, which counts in KiB.
std::int64_t statusBytes(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == key) {
            std::int64_t kibibytes = 0;
            status >> kibibytes;
            return kibibytes * 1024;
        }
    }
    return 0;
}

} // namespace

std::int64_t residentMemory() {
    return statusBytes("VmRSS:");
}

std::int64_t peakMemory() {
    return statusBytes("VmHWM:");
}

void resetPeakMemory() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

void warmMemory() {
    constexpr std::size_t kBytes = std::size_t{3} << 30;
    const auto memory = std::make_unique_for_overwrite<volatile char[]>(kBytes);
    for (std::size_t i = 0; i < kBytes; i += 4096) {
        memory[i] = 1;
    }
}

} // namespace orvane
