#include "platform/RecycledMemory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <new>
#include <vector>

namespace orvane {
namespace {

/// A source that knows what it has given out, and refuses one request.
struct WatchedSource : std::pmr::memory_resource {
    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        if (toGo >= 0 && toGo-- == 0) {
            throw std::bad_alloc();
        }
        void* memory = std::pmr::new_delete_resource()->allocate(bytes, alignment);
        sizes[memory] = bytes;
        return memory;
    }
    void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override {
        EXPECT_EQ(sizes[memory], bytes);
        sizes.erase(memory);
        std::pmr::new_delete_resource()->deallocate(memory, bytes, alignment);
    }
    bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
        return this == &other;
    }

    std::map<void*, std::size_t> sizes;
    int toGo = -1; ///< requests until the refused one
};

struct StampedBlock {
    char* memory;
    std::size_t size;
    char stamp;

    bool isWhole() const {
        return std::string_view(memory, size).find_first_not_of(stamp) == std::string::npos;
    }
};

/// Takes and gives back blocks of sizes all over the place, and looks whether each keeps its contents.
void useMemory(RecycledMemory& memory) {
    constexpr std::size_t kSizes[] = {1, 64, 65, 3600, 2400, 1024, 65'536, 65'537, 100'000};
    std::vector<StampedBlock> blocks;
    const auto giveBack = [&](std::size_t position) {
        EXPECT_TRUE(blocks[position].isWhole());
        memory.deallocate(blocks[position].memory, blocks[position].size, alignof(float));
        blocks.erase(blocks.begin() + static_cast<std::ptrdiff_t>(position));
    };
    for (std::size_t step = 0; step < 100; ++step) {
        const std::size_t size = kSizes[step * step / 3 % std::size(kSizes)];
        try {
            auto* const bytes = static_cast<char*>(memory.allocate(size, alignof(float)));
            blocks.push_back({bytes, size, static_cast<char>(step)});
            std::memset(bytes, static_cast<char>(step), size);
        } catch (const std::bad_alloc&) {
            continue;
        }
        if (step % 3 != 0) {
            giveBack(step * 7 % blocks.size());
        }
    }
    while (!blocks.empty()) {
        giveBack(0);
    }
}

TEST(RecycledMemory, LosesNothingWhicheverRequestIsRefused) {
    WatchedSource source;
    bool isRefused = true;
    for (int refused = 0; isRefused; ++refused) {
        source.toGo = refused;
        {
            RecycledMemory memory(source);
            useMemory(memory);
            EXPECT_FALSE(source.sizes.empty()) << "blocks wait for their next use";
        }
        EXPECT_TRUE(source.sizes.empty());
        isRefused = source.toGo < 0;
    }
}

TEST(RecycledMemory, HandsABlockOutAgainThatIsAtMostAQuarterTooLarge) {
    for (std::size_t size = 1; size <= 64 * 1024; ++size) {
        WatchedSource source;
        RecycledMemory memory(source);
        void* const block = memory.allocate(size);
        ASSERT_GE(source.sizes.at(block), size);
        ASSERT_LE(source.sizes.at(block), std::max<std::size_t>(64, size + size / 4));
        memory.deallocate(block, size);
        source.toGo = 0;
        ASSERT_EQ(memory.allocate(size), block) << size;
        memory.deallocate(block, size);
    }
}

} // namespace
} // namespace orvane
