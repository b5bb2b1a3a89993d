#include <gtest/gtest.h>

#include <cstring>

#include "core/BarcodeTypeRegistry.h"
#include "core/Beep.h"
#include "core/CharClasses.h"
#include "core/ConvertUtf8Data.h"
#include "core/ExportedFunctions.h"
#include "core/Formatting.h"
#include "core/ScratchRing.h"
#include "tests/HostStrings.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"

namespace linewright {

namespace {

TEST(ScratchRing, TakesPartsOfAText) {
    EXPECT_STREQ(MidString("abcdef", 2, 3), "bcd");
    EXPECT_STREQ(MidString("abcdef", 6, 3), "f");
    EXPECT_STREQ(MidString("abcdef", 7, 1), "");
    EXPECT_STREQ(MidString("", 1, 1), "");
    const std::string longest(300, 'x');
    EXPECT_EQ(std::strlen(MidString(longest.c_str(), 1, 256)), 256u);
}

TEST(ScratchRing, FillsTheRestWithNul) {
    const char* const slot = MidString("ab", 1, 256);
    EXPECT_TRUE(std::all_of(slot + 2, slot + 257, [](char c) { return c == 0; }));
}

TEST(ScratchRing, ReusesTheSlotOfTheFirstCallAtThe65th) {
    const char* const first = MidString("first", 1, 5);
    const char* const second = MidString("other", 1, 5);
    for (int i = 0; i < 62; ++i) MidString("other", 1, 5);
    EXPECT_STREQ(first, "first");
    EXPECT_EQ(MidString("again", 1, 5), first);
    EXPECT_STREQ(first, "again");
    EXPECT_STREQ(second, "other");
}

TEST(PString, ChangesPlaceWithACString) {
    char area[256] = "hello";
    PStringFromCStringInPlace(area);
    EXPECT_EQ(std::string(area, 6), "\5hello");
    PStringToCStringInPlace(area);
    EXPECT_STREQ(area, "hello");

    char longArea[400];
    std::memset(longArea, 'x', sizeof longArea);
    longArea[399] = 0;
    PStringFromCStringInPlace(longArea);
    EXPECT_EQ(static_cast<uint8>(longArea[0]), 255);
    EXPECT_EQ(longArea[255], 'x');
}

TEST(PString, CopiesItsLengthAndCharacters) {
    PString dest = MakePString("something longer");
    CopyPString(dest, MakePString("ab"));
    EXPECT_EQ(dest.View(), "ab");
}

TEST(PString, LeavesAbsentStringsAlone) {
    PString dest = MakePString("same");
    PStringFromCString(&dest, nullptr);
    AppendCStringToPString(&dest, nullptr);
    PStringFromCString(nullptr, "x");
    AppendCStringToPString(nullptr, "x");
    EXPECT_EQ(dest.View(), "same");
}

TEST(Bytes, AreCopiedAndZeroed) {
    char area[4] = {1, 2, 3, 4};
    CopyBytes(area, "ab", 2);
    EXPECT_EQ(std::string(area, 4), "ab\3\4");
    CopyBytesFrom("cd", area + 2, 2);
    EXPECT_EQ(std::string(area, 4), "abcd");
    ZeroBytes(area + 1, 2);
    EXPECT_EQ(std::string(area, 4), std::string("a\0\0d", 4));
    CopyBytes(nullptr, nullptr, 0);
    ZeroBytes(nullptr, 0);
}

TEST(CharClasses, AnAbsentListHoldsNothing) {
    EXPECT_EQ(IsInList(0, nullptr, 5), 0);
}

TEST(Formatting, FormatsLikeSprintf) {
    char buffer[32];
    EXPECT_EQ(FormatInto(buffer, "%c(%s%i", 'x', "ab", 42), 6);
    EXPECT_STREQ(buffer, "x(ab42");
}

TEST(ExportedFunctions, BorrowAScratchStringForEachCharacterOfStrupr) {
    const char* const before = MidString("x", 1, 1);
    std::string text(63, 'a');
    EXPECT_EQ(LinewrightStrupr(text.data()), std::string(63, 'A'));
    EXPECT_EQ(MidString("y", 1, 1), before);
}

TEST(ExportedFunctions, GiveNoneForNone) {
    EXPECT_EQ(LinewrightStrrev(nullptr), nullptr);
    EXPECT_EQ(LinewrightStrupr(nullptr), nullptr);
}

TEST(HostMemory, KnowsSizesAndResizesInPlace) {
    const TestHost host;
    uint8* const block = AllocBlock(10);
    EXPECT_EQ(BlockSize(block), 10u);
    EXPECT_TRUE(ResizeBlock(block, 4));
    EXPECT_EQ(BlockSize(block), 4u);
    FreeBlock(block);
    FreeBlock(nullptr);
    EXPECT_EQ(BlockSize(nullptr), 0u);
}

TEST(HostMemory, AnEmptyBlockIsABlock) {
    const TestHost host;
    uint8* const block = AllocBlock(0);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(BlockSize(block), 0u);
    FreeBlock(block);
}

TEST(HostMemory, WithoutSessionOrServiceNothingIsAllocated) {
    const TestHost host;
    uint8* const block = AllocBlock(3);
    for (const auto missing :
         {host::Faults::Missing::kSession, host::Faults::Missing::kMemoryService}) {
        host::Faults::TakeAway(missing);
        EXPECT_EQ(AllocBlock(1), nullptr);
        EXPECT_EQ(AllocConversionBlock(1), nullptr);
        EXPECT_FALSE(ResizeBlock(block, 1));
        EXPECT_EQ(BlockSize(block), 0u);
        FreeBlock(block);
        host::Faults::TakeAway(host::Faults::Missing::kNothing);
    }
    EXPECT_EQ(BlockSize(block), 3u);
    FreeBlock(block);
}

TEST(DataBlock, WithoutMemoryNothingChanges) {
    const TestHost host;
    TestBlock block(" 12 ");
    for (const auto& edit : {+[](DataBlock data) { return TrimSpaces(data); },
                             +[](DataBlock data) { return PadLeft(data, 9, '0'); },
                             +[](DataBlock data) { return PadToParity(data, 1, '0'); },
                             +[](DataBlock data) { return ReplaceData(data, "x"); },
                             +[](DataBlock data) { return ConvertUtf8Data(data); }}) {
        host::Faults::FailAllocation(1);
        EXPECT_FALSE(edit(block.Data()));
        EXPECT_EQ(block.Text(), " 12 ");
    }
}

TEST(DataBlock, AConversionsBlockHasRoomForATerminator) {
    const TestHost host;
    TestBlock block("a\xC3\xA9");
    ASSERT_TRUE(ConvertUtf8Data(block.Data()));
    EXPECT_EQ(block.Text(), "a\xE9");
    EXPECT_EQ(BlockSize(block.bytes), 3u);
}

TEST(DataBlock, AConversionWithoutABlockDoesNothing) {
    const TestHost host;
    uint8* bytes = nullptr;
    uint32 length = 7;
    EXPECT_TRUE(ConvertUtf8Data({bytes, length}));
    EXPECT_EQ(length, 7u);
}

TEST(Beep, Sounds) {
    const TestHost host;
    Beep();
    EXPECT_EQ(host.recorder.beeps, 1);
}

TEST(BarcodeTypeRegistry, EndsWithThreeEmptyEntries) {
    const TestHost host;
    for (std::size_t i = 0; i < registry.size(); ++i) {
        EXPECT_EQ(registry[i].code == 0, i >= 27) << i;
        EXPECT_EQ(registry[i].name.length == 0, i >= 27) << i;
        EXPECT_EQ(registry[i].displayText.IsEmpty() != 0, i >= 27) << i;
    }
}

TEST(BarcodeTypeRegistry, AnEntrysOwnTextIsNotCopiedOntoItself) {
    const TestHost host;
    EXPECT_EQ(DisplayTextForCode(9, registry[18].displayText), 0);
    EXPECT_EQ(Latin1(registry[18].displayText), "0x122100kLWRUtilityTypePopupItem23Key");
}

}  // namespace

}  // namespace linewright
