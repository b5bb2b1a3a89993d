#include "core/Word.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <random>
#include <string>

#include "core/BarcodeTypeRegistry.h"
#include "core/CharClasses.h"
#include "core/ConvertUtf8Data.h"
#include "standards/CheckDigits.h"
#include "tests/Rounds.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"
#include "text/LenientUtf8.h"
#include "types/BarcodeTypes.h"

// What is worked out for eight bytes at a time, against the same byte by byte.

namespace linewright {

namespace {

/** Bytes at the borders of digits and ASCII among digits. */
std::string RandomBytes(std::mt19937& random, std::size_t size) {
    constexpr std::string_view kBorders("/:0999@\0\x7F\x80\xB0\xB9\xBA\xFF", 14);
    std::string bytes;
    while (bytes.size() < size)
        bytes += random() % 8 ? static_cast<char>('0' + random() % 10)
                              : kBorders[random() % kBorders.size()];
    return bytes;
}

std::string RandomDigits(std::mt19937& random, std::size_t size) {
    std::string digits;
    while (digits.size() < size) digits += static_cast<char>('0' + random() % 10);
    return digits;
}

TEST(Word, LoadsTextsOfAllLengths) {
    const std::string text = "\x80zyxwvu7";
    for (std::size_t size = 0; size <= kWordSize; ++size)
        EXPECT_EQ(LoadWord(std::string_view(text).substr(0, size)), MakeWord(text.substr(0, size)));
    EXPECT_EQ(LoadWord<3>(text.data()), MakeWord(text.substr(0, 3)));
    EXPECT_EQ(LoadWord<5>(text.data()), MakeWord(text.substr(0, 5)));
    EXPECT_EQ(LoadWord<7>(text.data()), MakeWord(text.substr(0, 7)));
    EXPECT_EQ(LoadWord(text.data()), MakeWord(text));
}

TEST(Word, KnowsDigits) {
    std::mt19937 random(1);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string text = RandomBytes(random, random() % 20);
        EXPECT_EQ(AreDigits(text), std::all_of(text.begin(), text.end(), IsDigit))
            << testing::PrintToString(text);
        const std::string eight = RandomBytes(random, kWordSize);
        for (std::size_t place = 0; place < kWordSize; ++place)
            EXPECT_EQ(DigitMask(LoadWord(eight)) >> place & 1, IsDigit(eight[place]) ? 1u : 0u)
                << testing::PrintToString(eight) << " at " << place;
    }
}

TEST(Word, ReadsDecimalNumbers) {
    EXPECT_EQ(DecimalNumber(LoadWord("00000000")), 0u);
    EXPECT_EQ(DecimalNumber(LoadWord("99999999")), 99'999'999u);
    std::mt19937 random(2);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string digits = RandomDigits(random, kWordSize);
        EXPECT_EQ(DecimalNumber(LoadWord(digits)), std::stoul(digits));
    }
}

TEST(CheckDigits, AreTheSumsOfSingleDigits) {
    std::mt19937 random(3);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string digits =
            round % 16 ? RandomDigits(random, random() % 40) : std::string(random() % 513, '9');
        std::size_t threeAndOne = 0;
        std::size_t threeAndNine = 0;
        std::size_t msi = 0;
        for (std::size_t place = 0; place < digits.size(); ++place) {
            const auto digit = static_cast<std::size_t>(digits[digits.size() - 1 - place] - '0');
            threeAndOne += digit * (place % 2 == 0 ? 3 : 1);
            threeAndNine += digit * (place % 2 == 0 ? 3 : 9);
            const std::size_t counted = place % 2 == 0 ? 2 * digit : digit;
            msi += counted / 10 + counted % 10;
        }
        EXPECT_EQ(AlternatingSum(digits, 3, 1), threeAndOne) << digits;
        EXPECT_EQ(AlternatingSum(digits, 3, 9), threeAndNine) << digits;
        EXPECT_EQ(MsiModulo10CheckDigit(digits), Modulo10Complement(msi)) << digits;
    }
}

TEST(LookupTypeByName, FindsWhatTheBeginningOfANameFinds) {
    std::mt19937 random(4);
    for (int round = 0; round < Rounds(); ++round) {
        std::string name(kBarcodeTypes[random() % kBarcodeTypes.size()].name);
        switch (random() % 6) {
            case 0: name += RandomBytes(random, random() % 10); break;
            case 1: name[random() % name.size()] = 'X'; break;
            case 2: name.resize(random() % name.size()); break;
            case 3: name.insert(0, 1, 'X'); break;
            default: break;
        }
        const BarcodeType* const type = FindTypeByPrefix(name);
        EXPECT_EQ(LookupTypeByName(MakePString(name)), type ? static_cast<int32>(type->code) : 0)
            << testing::PrintToString(name);
    }
}

TEST(ConvertUtf8Data, GivesAsciiAsTheReaderOfUtf8Does) {
    const TestHost host;
    std::mt19937 random(5);
    for (int round = 0; round < Rounds(); ++round) {
        std::string text;
        for (std::size_t left = random() % 40; left > 0; --left)
            text += static_cast<char>(random() % (round % 2 ? 128 : 256));
        std::string expected;
        LenientUtf8 characters(text);
        while (const auto character = characters.Next())
            if (*character < 256) expected += static_cast<char>(*character);

        TestBlock block(text);
        const host::MemoryCounts before = host::CountMemory();
        ASSERT_TRUE(ConvertUtf8Data(block.Data()));
        EXPECT_EQ(block.Text(), expected) << testing::PrintToString(text);
        EXPECT_EQ(block.bytes[block.length], 0);
        EXPECT_EQ(BlockSize(block.bytes), block.length + 1);
        EXPECT_EQ(host::CountMemory().allocations, before.allocations + 1);
        EXPECT_EQ(host::CountMemory().deallocations, before.deallocations + 1);
    }
}

TEST(MemoryScope, IsOneQueryForAllBlocksInIt) {
    const TestHost host;
    {
        const MemoryScope memory;
        // What is taken away now was asked for before.
        host::Faults::TakeAway(host::Faults::Missing::kMemoryService);
        uint8* const block = AllocBlock(3);
        ASSERT_TRUE(block);
        FreeBlock(block);
    }
    EXPECT_FALSE(AllocBlock(3));
    const MemoryScope memory;
    host::Faults::TakeAway(host::Faults::Missing::kNothing);
    EXPECT_FALSE(AllocBlock(3));
}

}  // namespace

}  // namespace linewright
