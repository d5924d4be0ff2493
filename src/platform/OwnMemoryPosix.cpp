#include "platform/OwnMemory.h"

#include <fstream>
#include <string>

namespace orvane {

/// Not by `getrusage`, whose peak a program takes over from the process that started it.
std::uint64_t ownPeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        constexpr const char* kPeak = "VmHWM:"; // in KiB
        if (line.starts_with(kPeak)) {
            return std::stoull(line.substr(std::char_traits<char>::length(kPeak))) * 1024;
        }
    }
    return 0;
}

} // namespace orvane
