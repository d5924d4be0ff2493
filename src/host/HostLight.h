#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orvane {

/// Types of lights by the host's numbers. Hosts answer other numbers too.
enum class HostLightType : std::int32_t { spot = 2, point = 3, directional = 4 };

/// One light as the host describes it: 19 slots of 8 bytes. The host fills it as raw memory, so the order and
/// the place of every slot are fixed.
struct PackedData {
    alignas(8) HostLightType type{};
    double level = 0;
    std::array<double, 3> color{}; ///< red, green, blue
    std::array<double, 3> position{};
    std::array<double, 3> direction{};
    double coneAngle = 0; ///< degrees
    std::array<double, 3> attenuation{};
    double intensity = 0;
    double unused16 = 0;
    alignas(8) std::int32_t status = 0; ///< 0 means on
    double unused18 = 0;
};
static_assert(sizeof(PackedData) == 152 && offsetof(PackedData, intensity) == 120 &&
              offsetof(PackedData, status) == 136);

} // namespace orvane
