#pragma once

#include <cstdint>

namespace orvane {

/// As long as it lives, one request for memory through `new` is refused: the one with this number, counted
/// from 0.
class RefusedAllocation {
public:
    explicit RefusedAllocation(std::int64_t number);
    RefusedAllocation(const RefusedAllocation&) = delete;
    RefusedAllocation& operator=(const RefusedAllocation&) = delete;
    ~RefusedAllocation();

    /// Whether there were so many requests.
    bool happened() const;
};

} // namespace orvane
