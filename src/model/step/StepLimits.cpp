#include "model/step/StepLimits.h"

#include <algorithm>

namespace orvane::step {

namespace {

// A board of 38 MB takes about 1 GB and 10 seconds to parse, and less than a second for each of its parts.
constexpr std::int64_t kLeastMemory = std::int64_t{768} << 20;
constexpr std::int64_t kMemoryPerByte = 80;
constexpr std::uint64_t kLeastSeconds = 8;
constexpr std::uint64_t kBytesPerSecond = 100'000;
constexpr std::uint64_t kPatientSeconds = 600;

} // namespace

platform::GuardLimits kernelLimits(std::uint64_t fileSize, const MeshingOptions& meshing) {
    const std::int64_t share = platform::machineMemory() / 2;
    const std::uint64_t seconds =
        kLeastSeconds + std::min<std::uint64_t>(fileSize / kBytesPerSecond, 1 << 20);
    if (meshing.isChosen) {
        return {share, static_cast<std::uint32_t>(std::max(seconds, kPatientSeconds)), 0};
    }
    const std::int64_t needed =
        kLeastMemory +
        static_cast<std::int64_t>(std::min<std::uint64_t>(fileSize, INT64_MAX / 1000)) * kMemoryPerByte;
    return {std::min(share, needed), static_cast<std::uint32_t>(seconds), 0};
}

} // namespace orvane::step
