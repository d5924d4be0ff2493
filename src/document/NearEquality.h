#pragma once

#include <cmath>

namespace orvane {

/// Whether two numbers count as equal: they differ by at most 0.0001, whatever their size. False for NaN.
inline bool isNear(double a, double b) {
    return std::abs(a - b) <= 0.0001;
}

} // namespace orvane
