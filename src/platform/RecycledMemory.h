#pragma once

#include "platform/Memory.h"

#include <array>
#include <cstddef>
#include <memory_resource>

namespace orvane {

/// Memory for many blocks of like sizes that come and go: one that is given back serves the next request of
/// its size class, up to 64 KiB. What is larger passes through. A request that is refused throws
/// `std::bad_alloc` and changes nothing; giving back takes no memory.
class RecycledMemory final : public std::pmr::memory_resource {
public:
    /// Blocks come from `source`, which outlives the object, and return to it at the object's end, by which
    /// all of them have been given back.
    explicit RecycledMemory(std::pmr::memory_resource& source = largePageMemory()) : source_(source) {}
    RecycledMemory(const RecycledMemory&) = delete;
    RecycledMemory& operator=(const RecycledMemory&) = delete;
    ~RecycledMemory() override;

private:
    struct FreeBlock {
        FreeBlock* next;
    };

    void* do_allocate(std::size_t bytes, std::size_t alignment) override;
    void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override;
    bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
        return this == &other;
    }

    static constexpr std::size_t kClassCount = 41;

    std::pmr::memory_resource& source_;
    std::array<FreeBlock*, kClassCount> free_{}; ///< by size class
};

} // namespace orvane
