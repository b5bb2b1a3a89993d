#include <gtest/gtest.h>

#include "core/EncodeBarcodeData.h"
#include "host/runtime/Host.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"
#include "tests/classic/ClassicTypes.h"

namespace linewright {

namespace {

class ClassicMemory : public testing::Test {
  protected:
    TestHost host;
};

TEST_F(ClassicMemory, OneEncodingMakesOneBlockAndFreesOne) {
    for (const ClassicType& type : ClassicTypes()) {
        for (const std::string& data : {type.goodData, type.badData}) {
            TestBlock block(data);
            const host::MemoryCounts before = host::CountMemory();
            const int16 status = EncodeClassic(type, block.Data());
            const host::MemoryCounts after = host::CountMemory();
            EXPECT_EQ(status == kEncoded, data == type.goodData) << type.name;
            EXPECT_EQ(after.allocations - before.allocations, 1u) << type.name << ' ' << data;
            EXPECT_EQ(after.deallocations - before.deallocations, 1u) << type.name << ' ' << data;
        }
    }
}

TEST_F(ClassicMemory, TheBlockHasTheSizeOfTheResult) {
    for (const ClassicType& type : ClassicTypes()) {
        for (const std::string& data : {type.goodData, type.badData}) {
            TestBlock block(data);
            const int16 status = EncodeClassic(type, block.Data());
            uint32 expected = block.length;
            if (status == kEncoded && type.name == "_BARCODE_UPCE_") expected = 24;
            if (status == kEncoded && type.name.starts_with("_BARCODE_CODE128")) expected += 2;
            EXPECT_EQ(BlockSize(block.bytes), expected) << type.name << ' ' << data;
        }
    }
}

TEST_F(ClassicMemory, WithoutMemoryTheDataStays) {
    for (const ClassicType& type : ClassicTypes()) {
        for (const std::string& data : {type.goodData, type.badData}) {
            TestBlock block(data);
            const uint8* const bytes = block.bytes;
            const uint32 live = host::CountMemory().liveBlocks;
            host::Faults::FailAllocation(1);
            EXPECT_EQ(EncodeClassic(type, block.Data()), kInternalError) << type.name;
            EXPECT_EQ(block.bytes, bytes) << type.name;
            EXPECT_EQ(block.Text(), data) << type.name;
            EXPECT_EQ(host::CountMemory().liveBlocks, live) << type.name;
        }
    }
}

TEST_F(ClassicMemory, ASecondAllocationIsNotMade) {
    for (const ClassicType& type : ClassicTypes()) {
        TestBlock block(type.goodData);
        host::Faults::FailAllocation(2);
        EXPECT_EQ(EncodeClassic(type, block.Data()), kEncoded) << type.name;
        host::Faults::FailAllocation(0);
    }
}

// Converted, trimmed, encoded: one allocation each.
TEST_F(ClassicMemory, WithoutMemoryTheDataIsAtMostConvertedAndTrimmed) {
    for (const ClassicType& type : ClassicTypes()) {
        const std::string padded = "  " + type.goodData + " ";
        for (const uint32 failing : {1u, 2u, 3u, 4u}) {
            TestBlock block(padded);
            const uint32 live = host::CountMemory().liveBlocks;
            host::Faults::FailAllocation(failing);
            const int16 status =
                EncodeBarcodeData(&block.bytes, MakePString(type.name), &block.length, 1, nullptr,
                                  0, 2.0, 0, nullptr, nullptr);
            host::Faults::FailAllocation(0);
            EXPECT_EQ(status, failing == 4 ? kEncoded : kInternalError) << type.name << failing;
            if (failing < 4) {
                EXPECT_EQ(block.Text(), failing == 3 ? type.goodData : padded)
                    << type.name << failing;
            }
            EXPECT_EQ(host::CountMemory().liveBlocks, live) << type.name << failing;
        }
    }
}

TEST_F(ClassicMemory, WithoutASessionTheDataStays) {
    for (const ClassicType& type : ClassicTypes()) {
        TestBlock block(type.goodData);
        host::Faults::TakeAway(host::Faults::Missing::kSession);
        EXPECT_EQ(EncodeClassic(type, block.Data()), kInternalError) << type.name;
        host::Faults::TakeAway(host::Faults::Missing::kNothing);
        EXPECT_EQ(block.Text(), type.goodData) << type.name;
    }
}

}  // namespace

}  // namespace linewright
