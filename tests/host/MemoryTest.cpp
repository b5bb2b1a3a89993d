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
        service =
            static_cast<IMemoryService*>(GetExecutionContextSession()->QueryInterface(0xFA500));
        ASSERT_TRUE(service);
    }
    void TearDown() override {
        service->Release();
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

    IMemoryService* service = nullptr;
};

TEST_F(MemoryTest, CountsBlocks) {
    EXPECT_EQ(host::CountMemory().allocations, 0u);
    void* const first = service->Allocate(10);
    void* const second = service->AllocateForConversion(20);
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_NE(first, second);
    EXPECT_EQ(host::CountMemory().allocations, 2u);
    EXPECT_EQ(host::CountMemory().liveBlocks, 2u);
    service->Deallocate(first);
    EXPECT_EQ(host::CountMemory().deallocations, 1u);
    EXPECT_EQ(host::CountMemory().liveBlocks, 1u);
    service->Deallocate(nullptr);
    service->Deallocate(second);
    EXPECT_EQ(host::CountMemory().allocations, 2u);
    EXPECT_EQ(host::CountMemory().deallocations, 2u);
    EXPECT_EQ(host::CountMemory().liveBlocks, 0u);
}

TEST_F(MemoryTest, KnowsSizes) {
    void* const block = service->Allocate(10);
    void* const empty = service->Allocate(0);
    ASSERT_TRUE(empty);
    EXPECT_EQ(service->GetSize(block), 10u);
    EXPECT_EQ(service->GetSize(empty), 0u);
    EXPECT_EQ(service->GetSize(nullptr), 0u);
    service->Deallocate(block);
    service->Deallocate(empty);
}

TEST_F(MemoryTest, ResizesInPlaceAsFarAsTheBlockReaches) {
    auto* const block = static_cast<char*>(service->Allocate(10));
    std::fill_n(block, 10, 'x');
    EXPECT_TRUE(service->Resize(block, 4));
    EXPECT_EQ(service->GetSize(block), 4u);
    EXPECT_FALSE(service->Resize(block, 11));
    EXPECT_EQ(service->GetSize(block), 4u);
    EXPECT_TRUE(service->Resize(block, 10));
    EXPECT_EQ(service->GetSize(block), 10u);
    EXPECT_EQ(std::string_view(block, 10), "xxxxxxxxxx");
    EXPECT_FALSE(service->Resize(nullptr, 1));
    EXPECT_EQ(host::CountMemory().allocations, 1u);
    service->Deallocate(block);
}

TEST_F(MemoryTest, FailsTheAllocationAskedForAndNoOther) {
    for (uint32 n = 1; n <= 3; ++n) {
        host::Faults::FailAllocation(n);
        std::vector<void*> blocks;
        for (uint32 i = 1; i <= 4; ++i) {
            blocks.push_back(i % 2 ? service->Allocate(1) : service->AllocateForConversion(1));
            EXPECT_EQ(blocks.back() == nullptr, i == n) << i << " of " << n;
        }
        for (void* block : blocks) service->Deallocate(block);
    }
    EXPECT_EQ(host::CountMemory().allocations, 9u);
    host::Faults::FailAllocation(1);
    host::Faults::FailAllocation(0);
    void* const block = service->Allocate(1);
    EXPECT_TRUE(block);
    service->Deallocate(block);
}

TEST_F(MemoryTest, FillsFreshBlocks) {
    auto* const block = static_cast<uint8*>(service->Allocate(100));
    std::fill_n(block, 100, uint8{0});
    service->Deallocate(block);
    auto* const fresh = static_cast<uint8*>(service->Allocate(100));
    if (host::ChecksRules()) {
        EXPECT_TRUE(std::all_of(fresh, fresh + 100, [](uint8 byte) { return byte == 0xCD; }));
    }
    service->Deallocate(fresh);
}

TEST_F(MemoryTest, RefusesADoubleFree) {
    void* const block = service->Allocate(10);
    service->Deallocate(block);
    ExpectRefused([&] { service->Deallocate(block); }, "freed \\(double free");
}

TEST_F(MemoryTest, RefusesADoubleFreeAlsoAfterOtherWork) {
    void* const block = service->Allocate(10);
    service->Deallocate(block);
    std::set<void*> others;
    for (int i = 0; i < 500; ++i) {
        void* const other = service->Allocate(10);
        others.insert(other);
        service->Deallocate(other);
    }
    if (!host::ChecksRules()) return;
    EXPECT_FALSE(others.contains(block)) << "a freed address was given again";
    EXPECT_DEATH(service->Deallocate(block), "freed \\(double free");
}

TEST_F(MemoryTest, RefusesAForeignPointer) {
    int foreign = 0;
    auto* const block = static_cast<char*>(service->Allocate(10));
    const char* const word = "does not come from the memory service";
    ExpectRefused([&] { service->Deallocate(&foreign); }, word);
    ExpectRefused([&] { service->Deallocate(block + 1); }, word);
    ExpectRefused([&] { EXPECT_FALSE(service->Resize(&foreign, 1)); }, word);
    ExpectRefused([&] { EXPECT_EQ(service->GetSize(&foreign), 0u); }, word);
    service->Deallocate(block);
}

TEST_F(MemoryTest, NoticesAWriteToAFreedBlock) {
    if (!host::ChecksRules()) return;
    auto* volatile block = static_cast<char*>(service->Allocate(10));
    service->Deallocate(block);
    const auto writeAndStop = [&] {
        block[3] = 'x';
        host.Stop();
    };
    // Either the host's word, or the address sanitizer's: use-after-poison.
    EXPECT_DEATH(writeAndStop(), "after");
}

TEST_F(MemoryTest, LimitsWhatItKeepsOfFreedBlocks) {
    for (int i = 0; i < 20; ++i) service->Deallocate(service->Allocate(1 << 20));
    for (int i = 0; i < 5000; ++i) service->Deallocate(service->Allocate(16));
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
