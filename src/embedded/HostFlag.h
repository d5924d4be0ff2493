#pragma once

#include <cstdint>

namespace orvane::embedded {

/// A boolean as the host answers it: 16 bits, all of them set for true.
inline std::int16_t toFlag(bool value) {
    return value ? -1 : 0;
}

} // namespace orvane::embedded
