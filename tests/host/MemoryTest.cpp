#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "ISession.h"
#include "tests/host/HostTest.h"

class MemoryTest : public StartedHostTest {
  protected:
    void SetUp() override {
        StartedHostTest::SetUp();
        fService =
            static_cast<IMemoryService*>(GetExecutionContextSession()->QueryInterface(0xFA500));
        ASSERT_TRUE(fService);
    }
    void TearDown() override {
        fService->Release();
        StartedHostTest::TearDown();
    }
    /** Expects a word and an end where rules are checked, and no effect elsewhere. */
    template <class Action>
    void ExpectRefused(Action action, const char* word) {
        if (host::ChecksRules()) {
            EXPECT_DEATH(action(), word);
            return;
        }
        const host::MemoryCounts before = host::CountMemory();
        action();
        EXPECT_EQ(host::CountMemory().deallocations, before.deallocations);
        EXPECT_EQ(host::CountMemory().liveBlocks, before.liveBlocks);
    }

    IMemoryService* fService = nullptr;
};

TEST_F(MemoryTest, CountsBlocks) {
    EXPECT_EQ(host::CountMemory().allocations, 0u);
    void* const first = fService->Allocate(10);
    void* const second = fService->AllocateForConversion(20);
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_NE(first, second);
    EXPECT_EQ(host::CountMemory().allocations, 2u);
    EXPECT_EQ(host::CountMemory().liveBlocks, 2u);
    fService->Deallocate(first);
    EXPECT_EQ(host::CountMemory().deallocations, 1u);
    EXPECT_EQ(host::CountMemory().liveBlocks, 1u);
    fService->Deallocate(nullptr);
    fService->Deallocate(second);
    EXPECT_EQ(host::CountMemory().allocations, 2u);
    EXPECT_EQ(host::CountMemory().deallocations, 2u);
    EXPECT_EQ(host::CountMemory().liveBlocks, 0u);
}

TEST_F(MemoryTest, KnowsSizes) {
    void* const block = fService->Allocate(10);
    void* const empty = fService->Allocate(0);
    ASSERT_TRUE(empty);
    EXPECT_EQ(fService->GetSize(block), 10u);
    EXPECT_EQ(fService->GetSize(empty), 0u);
    EXPECT_EQ(fService->GetSize(nullptr), 0u);
    fService->Deallocate(block);
    fService->Deallocate(empty);
}

TEST_F(MemoryTest, ResizesInPlaceAsFarAsTheBlockReaches) {
    auto* const block = static_cast<char*>(fService->Allocate(10));
    std::fill_n(block, 10, 'x');
    EXPECT_TRUE(fService->Resize(block, 4));
    EXPECT_EQ(fService->GetSize(block), 4u);
    EXPECT_FALSE(fService->Resize(block, 11));
    EXPECT_EQ(fService->GetSize(block), 4u);
    EXPECT_TRUE(fService->Resize(block, 10));
    EXPECT_EQ(fService->GetSize(block), 10u);
    EXPECT_EQ(std::string_view(block, 10), "xxxxxxxxxx");
    EXPECT_FALSE(fService->Resize(nullptr, 1));
    EXPECT_EQ(host::CountMemory().allocations, 1u);
    fService->Deallocate(block);
}

TEST_F(MemoryTest, FailsTheAllocationAskedForAndNoOther) {
    for (uint32 n = 1; n <= 3; ++n) {
        host::Faults::FailAllocation(n);
        std::vector<void*> blocks;
        for (uint32 i = 1; i <= 4; ++i) {
            blocks.push_back(i % 2 ? fService->Allocate(1) : fService->AllocateForConversion(1));
            EXPECT_EQ(blocks.back() == nullptr, i == n) << i << " of " << n;
        }
        for (void* block : blocks) fService->Deallocate(block);
    }
    EXPECT_EQ(host::CountMemory().allocations, 9u);
    host::Faults::FailAllocation(1);
    host::Faults::FailAllocation(0);
    void* const block = fService->Allocate(1);
    EXPECT_TRUE(block);
    fService->Deallocate(block);
}

TEST_F(MemoryTest, FillsFreshBlocks) {
    auto* const block = static_cast<uint8*>(fService->Allocate(100));
    std::fill_n(block, 100, uint8{0});
    fService->Deallocate(block);
    auto* const fresh = static_cast<uint8*>(fService->Allocate(100));
    if (host::ChecksRules()) {
        EXPECT_TRUE(std::all_of(fresh, fresh + 100, [](uint8 byte) { return byte == 0xCD; }));
    }
    fService->Deallocate(fresh);
}

TEST_F(MemoryTest, RefusesADoubleFree) {
    void* const block = fService->Allocate(10);
    fService->Deallocate(block);
    ExpectRefused([&] { fService->Deallocate(block); }, "freed \\(double free");
}

TEST_F(MemoryTest, RefusesADoubleFreeAlsoAfterOtherWork) {
    void* const block = fService->Allocate(10);
    fService->Deallocate(block);
    std::set<void*> others;
    for (int i = 0; i < 500; ++i) {
        void* const other = fService->Allocate(10);
        others.insert(other);
        fService->Deallocate(other);
    }
    if (!host::ChecksRules()) return;
    EXPECT_FALSE(others.contains(block)) << "a freed address was given again";
    EXPECT_DEATH(fService->Deallocate(block), "freed \\(double free");
}

TEST_F(MemoryTest, RefusesAForeignPointer) {
    int foreign = 0;
    auto* const block = static_cast<char*>(fService->Allocate(10));
    const char* const word = "does not come from the memory service";
    ExpectRefused([&] { fService->Deallocate(&foreign); }, word);
    ExpectRefused([&] { fService->Deallocate(block + 1); }, word);
    ExpectRefused([&] { EXPECT_FALSE(fService->Resize(&foreign, 1)); }, word);
    ExpectRefused([&] { EXPECT_EQ(fService->GetSize(&foreign), 0u); }, word);
    fService->Deallocate(block);
}

TEST_F(MemoryTest, NoticesAWriteToAFreedBlock) {
    if (!host::ChecksRules()) return;
    auto* volatile block = static_cast<char*>(fService->Allocate(10));
    fService->Deallocate(block);
    const auto writeAndStop = [&] {
        block[3] = 'x';
        host.Stop();
    };
    // Either the host's word, or the address sanitizer's: use-after-poison.
    EXPECT_DEATH(writeAndStop(), "after");
}

TEST_F(MemoryTest, LimitsWhatItKeepsOfFreedBlocks) {
    for (int i = 0; i < 20; ++i) fService->Deallocate(fService->Allocate(1 << 20));
    for (int i = 0; i < 5000; ++i) fService->Deallocate(fService->Allocate(16));
    EXPECT_EQ(host::CountMemory().liveBlocks, 0u);
}

using LeakTest = HostTest;

TEST_F(LeakTest, ReportsBlocks) {
    ASSERT_TRUE(Start()) << Error();
    for (int i = 0; i < 3; ++i) QueryMemory()->Allocate(5);
    const host::Leaks leaks = host.Stop();
    EXPECT_EQ(leaks.blocks, 3u);
    EXPECT_EQ(leaks.references, 0u);
    ASSERT_TRUE(Start()) << Error();
    EXPECT_EQ(host::CountMemory().liveBlocks, 0u);
    EXPECT_EQ(host.Stop().blocks, 0u);
}
