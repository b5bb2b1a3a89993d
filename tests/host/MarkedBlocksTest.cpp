#include "host/runtime/MarkedBlocks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string_view>

// The blocks of a host that checks no rules, also where the host of these tests does.

TEST(MarkedBlocks, KeepTheirSizesAndWhatIsWrittenToThem) {
    host::MarkedBlocks blocks;
    auto* const block = static_cast<char*>(blocks.Allocate(10));
    auto* const empty = blocks.Allocate(0);
    ASSERT_TRUE(block && empty);
    std::fill_n(block, 10, 'x');
    EXPECT_EQ(blocks.GetSize(block), 10u);
    EXPECT_EQ(blocks.GetSize(empty), 0u);
    EXPECT_TRUE(blocks.Resize(block, 4));
    EXPECT_FALSE(blocks.Resize(block, 11));
    EXPECT_EQ(blocks.GetSize(block), 4u);
    EXPECT_TRUE(blocks.Resize(block, 10));
    EXPECT_EQ(std::string_view(block, 10), "xxxxxxxxxx");
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t), 0u);
    EXPECT_TRUE(blocks.Deallocate(block));
    EXPECT_TRUE(blocks.Deallocate(empty));
}

TEST(MarkedBlocks, DoNothingToWhatHasNoMark) {
    host::MarkedBlocks blocks;
    std::array<char, 64> memory{};
    // Volatile, lest the compiler sees that this is no block.
    char* volatile foreign = memory.data() + 32;
    EXPECT_FALSE(blocks.Deallocate(foreign));
    EXPECT_FALSE(blocks.Resize(foreign, 1));
    EXPECT_EQ(blocks.GetSize(foreign), 0u);

    auto* const block = static_cast<char*>(blocks.Allocate(64));
    char* volatile inside = block + 16;
    EXPECT_FALSE(blocks.Deallocate(inside));
    // What was copied carries the mark of another place.
    std::copy_n(block - 16, 16, block + 16);
    inside = block + 32;
    EXPECT_FALSE(blocks.Deallocate(inside));
    EXPECT_TRUE(blocks.Deallocate(block));
}
