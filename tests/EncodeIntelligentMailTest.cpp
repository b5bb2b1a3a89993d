#include "imb/EncodeIntelligentMail.h"

#include <gtest/gtest.h>

#include "core/Status.h"
#include "tests/HostStrings.h"
#include "tests/ImbDecoder.h"
#include "tests/ImbRandomCode.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"

namespace linewright {

namespace {

class IntelligentMailFront : public testing::Test {
  protected:
    TestHost host;
};

TEST_F(IntelligentMailFront, BringsBackTheDigits) {
    std::mt19937 random(32);
    for (int count = 0; count < 10'000; ++count) {
        const ImbCode code = RandomImbCode(random, kImbRoutingLengths[count % 4]);
        TestBlock block(code.tracking + code.routing);
        PMString message = HostString("before");
        PMString humanReadable;
        ASSERT_EQ(EncodeIntelligentMail(block.Data(), &message, &humanReadable), kEncoded);
        ASSERT_EQ(DecodeImb(block.Text()), code);
        ASSERT_EQ(Latin1(humanReadable), code.tracking + code.routing);
        ASSERT_TRUE(message.IsEmpty());
    }
}

TEST_F(IntelligentMailFront, NeedsNeitherMessageNorHumanReadableText) {
    const std::string tracking = "01234567094987654321";
    const std::pair<std::string, int16> cases[] = {
        {tracking, kEncoded},
        {tracking.substr(1), kBadLength},
        {tracking + "x", kInvalidData},
        {tracking + "1", kBadLength},
        {"09" + tracking.substr(2), kInternalError},
    };
    for (const auto& [data, status] : cases) {
        TestBlock block(data);
        EXPECT_EQ(EncodeIntelligentMail(block.Data(), nullptr, nullptr), status) << data;
    }
}

TEST_F(IntelligentMailFront, LeavesTheBlockAloneForABadRoutingLength) {
    const std::string data = "012345670949876543210123";
    TestBlock block(data);
    const uint8* const bytes = block.bytes;
    const host::MemoryCounts before = host::CountMemory();
    PMString message;
    PMString humanReadable = HostString("before");
    EXPECT_EQ(EncodeIntelligentMail(block.Data(), &message, &humanReadable), kBadLength);
    EXPECT_EQ(block.bytes, bytes);
    EXPECT_EQ(block.Text(), data);
    EXPECT_EQ(Latin1(humanReadable), "before");
    EXPECT_FALSE(message.IsTranslatable());
    EXPECT_EQ(host::CountMemory().allocations, before.allocations);
    EXPECT_EQ(host::CountMemory().deallocations, before.deallocations);
}

TEST_F(IntelligentMailFront, ReplacesAnEarlierMessage) {
    TestBlock block("1");
    PMString message = HostString("before");
    EXPECT_EQ(EncodeIntelligentMail(block.Data(), &message, nullptr), kBadLength);
    EXPECT_EQ(Latin1(message).find("before"), std::string::npos);
}

}  // namespace

}  // namespace linewright
