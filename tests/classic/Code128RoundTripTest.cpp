#include <gtest/gtest.h>

#include <random>

#include "classic/Code128.h"
#include "core/Status.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"

// Reads a font string back as a scanner reads the symbol: from values to data, with the check.

namespace linewright {

namespace {

int ValueOfCheck(uint8 byte) {
    if (byte == 192) return 0;
    if (byte == 193) return 7;
    if (byte == 194) return 64;
    if (byte >= 195 && byte <= 201) return byte - 100;
    if (byte == 134) return 102;
    return byte - 32;
}

int ValueOfCharacter(uint8 byte) {
    if (byte == 192) return 0;
    if (byte == 193) return 7;
    return byte < 32 ? byte + 64 : byte - 32;
}

int ValueOfPair(uint8 byte) {
    if (byte == 192) return 0;
    if (byte == 193) return 7;
    if (byte >= 195 && byte <= 197) return byte - 100;
    return byte - 32;
}

/** ISO/IEC 15417, table 1, of set A; function and code change characters are bytes 128 to 134. */
char CharacterInSetA(int value) {
    if (value < 64) return static_cast<char>(value + 32);
    return static_cast<char>(value < 96 ? value - 64 : value + 32);
}

struct CodeSet {
    int startValue;
    uint8 startByte;
    int16 (*encode)(DataBlock data);
    int (*valueOf)(uint8 byte);
    std::string (*textOf)(int value);
};

const CodeSet kCodeSets[] = {
    {103, 0x87, EncodeCode128A, ValueOfCharacter,
     [](int value) { return std::string(1, CharacterInSetA(value)); }},
    {104, 0x88, EncodeCode128B, ValueOfCharacter,
     [](int value) { return std::string(1, static_cast<char>(value + 32)); }},
    {105, 0x89, EncodeCode128C, ValueOfPair,
     [](int value) {
         return std::string{static_cast<char>('0' + value / 10),
                            static_cast<char>('0' + value % 10)};
     }},
};

/** The data of a symbol whose start, check and stop are right. */
std::string Decode(const CodeSet& set, const std::string& symbol) {
    const auto byteAt = [&](std::size_t place) { return static_cast<uint8>(symbol.at(place)); };
    const std::size_t checkPlace = symbol.size() - 2;
    EXPECT_EQ(byteAt(0), set.startByte);
    EXPECT_EQ(byteAt(checkPlace + 1), 0x8A);
    std::string data;
    int sum = set.startValue;
    for (std::size_t place = 1; place < checkPlace; ++place) {
        const int value = set.valueOf(byteAt(place));
        sum += value * static_cast<int>(place);
        data += set.textOf(value);
    }
    EXPECT_EQ(ValueOfCheck(byteAt(checkPlace)), sum % 103);
    return data;
}

/** Up to 24 symbol characters: their sum stays below 32,768. */
std::string RandomData(const CodeSet& set, std::mt19937& random) {
    std::string data;
    for (std::size_t count = random() % 25; count > 0; --count)
        data += set.textOf(static_cast<int>(random() % (set.startValue == 105 ? 100 : 103)));
    return data;
}

TEST(Code128Classic, ReadsBack) {
    const TestHost host;
    std::mt19937 random(15417);
    for (const CodeSet& set : kCodeSets) {
        for (int count = 0; count < 5000; ++count) {
            const std::string data = RandomData(set, random);
            TestBlock block(data);
            ASSERT_EQ(set.encode(block.Data()), kEncoded);
            ASSERT_EQ(Decode(set, block.Text()), data);
        }
    }
}

TEST(Code128Classic, EachByteIsEncodedOrRefused) {
    const TestHost host;
    for (const CodeSet& set : {kCodeSets[0], kCodeSets[1]}) {
        for (int byte = 0; byte < 256; ++byte) {
            const bool isSetA = set.startValue == 103;
            const bool belongs =
                isSetA ? byte < 96 || (byte >= 128 && byte <= 134) : byte >= 32 && byte <= 134;
            const std::string data(1, static_cast<char>(byte));
            TestBlock block(data);
            ASSERT_EQ(set.encode(block.Data()), belongs ? kEncoded : kBadData) << byte;
            if (belongs) {
                ASSERT_EQ(Decode(set, block.Text()), data) << byte;
            }
        }
    }
}

TEST(Code128Classic, AnOddNumberOfDigitsReadsBackWithAZero) {
    const TestHost host;
    const CodeSet& set = kCodeSets[2];
    for (const std::string data : {"1", "123", "00000", "9876543"}) {
        TestBlock block(data);
        ASSERT_EQ(set.encode(block.Data()), kEncoded);
        EXPECT_EQ(Decode(set, block.Text()), "0" + data);
    }
}

}  // namespace

}  // namespace linewright
