#pragma once

#include <array>

namespace orvane {

/// Two opposite corners x0 y0 z0 x1 y1 z1 of an axis-parallel box, metres.
using HostBox = std::array<double, 6>;

} // namespace orvane
