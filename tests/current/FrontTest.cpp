#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "core/EncodeBarcodeData.h"
#include "core/EncoderTable.h"
#include "core/Status.h"
#include "tests/HostStrings.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"
#include "tests/current/RandomText.h"

namespace linewright {

namespace {

constexpr std::string_view kDigitCharacters = "0123456789";
constexpr std::string_view kCode39Alphabet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ -.$/+%";
constexpr std::string_view kCodabarAlphabet = "0123456789-$:/.+";

bool ConsistsOf(const std::string& text, std::string_view alphabet) {
    return text.find_first_not_of(alphabet) == std::string::npos;
}

std::string FilledUp(const std::string& digits, std::size_t length) {
    return std::string(length - digits.size(), '0') + digits;
}

/** What is said about a type: which data it takes, what stands below the bars, which hints. */
struct Type {
    uint16 code;
    const char* name;
    std::function<bool(std::size_t length)> takesLength;
    std::string lengthHint;
    std::function<bool(const std::string& data)> takesCharacters;
    std::string dataHint;
    std::function<std::string(const std::string& data, bool check)> normalised;
};

std::string Key(const std::string& name) {
    return "0x122100kLWRBarCode" + name;
}

const auto kUpTo255 = [](std::size_t length) { return length <= 255; };
const auto kIsDigits = [](const std::string& data) { return ConsistsOf(data, kDigitCharacters); };
const auto kAsItIs = [](const std::string& data, bool) { return data; };
const auto kToPairs = [](const std::string& data, bool check) {
    return (data.size() + check) % 2 == 1 ? "0" + data : data;
};

/** A set of characters also takes a NUL. */
bool IsOf(const std::string& data, std::string_view alphabet) {
    return ConsistsOf(data, std::string(alphabet) + '\0');
}

const std::vector<Type>& Types() {
    static const std::string lengthHint = Key("LengthLessThanHint|255");
    static const std::string digitsHint = Key("DataDigitsOnlyHint");
    const auto ean13 = [](uint16 code, const char* name) {
        return Type{code,
                    name,
                    [](std::size_t length) { return length <= 13; },
                    Key("LengthLessThanOrCheckDigitHint|12|13"),
                    kIsDigits,
                    digitsHint,
                    [](const std::string& data, bool) { return FilledUp(data.substr(0, 12), 12); }};
    };
    static const std::vector<Type> types = {
        {9, "_BARCODE_EAN8_", [](std::size_t length) { return length <= 8; },
         Key("LengthLessThanOrCheckDigitHint|7|8"), kIsDigits, digitsHint,
         [](const std::string& data, bool) { return FilledUp(data.substr(0, 7), 7); }},
        {20, "_QVT_BARCODE_CODABAR_",
         [](std::size_t length) { return length >= 4 && length <= 255; },
         Key("LengthBetweenHint|4|255"),
         [](const std::string& data) { return IsOf(data, kCodabarAlphabet); },
         Key("DataDigitsPlusHint"), kAsItIs},
        {21, "_QVT_BARCODE_CODE39_", kUpTo255, lengthHint,
         [](const std::string& data) { return IsOf(data, kCode39Alphabet); },
         Key("DataDigitsUpperCasePlusSpacesHint"), kAsItIs},
        {22, "_QVT_BARCODE_CODE128_", kUpTo255, lengthHint, [](const std::string&) { return true; },
         "", kAsItIs},
        ean13(23, "_QVT_BARCODE_EAN13_"),
        {24, "_QVT_BARCODE_I2OF5_", kUpTo255, lengthHint, kIsDigits, digitsHint, kToPairs},
        {25, "_QVT_BARCODE_I2OF5_TEXT_", kUpTo255, lengthHint, kIsDigits, digitsHint, kToPairs},
        ean13(26, "_QVT_BARCODE_JAN13_"),
        {27, "_QVT_BARCODE_MSI_", kUpTo255, lengthHint, kIsDigits, digitsHint, kAsItIs},
        {28, "_QVT_BARCODE_UPCA_",
         [](std::size_t length) { return length >= 11 && length <= 17 && length != 15; },
         Key("LengthMustBeHint|11, 13 or 16|12, 14 or 17"), kIsDigits, digitsHint,
         [](const std::string& data, bool) {
             const bool hasCheckDigit = data.size() != 16 && data.size() != 11 && data.size() != 13;
             return data.substr(0, data.size() - hasCheckDigit);
         }},
        {29, "_QVT_BARCODE_UPCE_",
         [](std::size_t length) {
             return length == 7 || length == 8 || length == 11 || length == 12;
         },
         Key("LengthMustBeHint|7 or 11|8 or 12"), kIsDigits, digitsHint,
         [](const std::string& data, bool) { return data.substr(0, data.size() <= 8 ? 7 : 11); }},
    };
    return types;
}

struct Result {
    int32 status;
    std::string data;
    std::string hint;
    std::string humanReadable;
    bool operator==(const Result&) const = default;
};

/** One call of a type's encoder, of which the only block must be made anew. */
Result Encode(uint16 code, const std::string& data, uint16 check, double ratio) {
    TestBlock block(data);
    PMString hint = HostString("hint before");
    PMString humanReadable = HostString("text before");
    const auto before = host::CountMemory();
    const int32 status = (*encoders)[code]({block.Data(), check, ratio, &hint, &humanReadable});
    const auto after = host::CountMemory();
    EXPECT_EQ(after.allocations - before.allocations, 1u);
    EXPECT_EQ(after.deallocations - before.deallocations, 1u);
    return {status, block.Text(), Latin1(hint), Latin1(humanReadable)};
}

/** Data of which much is valid for one type or another. */
std::string RandomData(std::mt19937& random) {
    static const std::string everyByte = [] {
        std::string bytes;
        for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
        return bytes;
    }();
    switch (random() % 8) {
        case 0: return RandomText(random, everyByte, 0, 20);
        case 1: return RandomText(random, everyByte, 240, 300);
        case 2: return RandomText(random, kDigitCharacters, 240, 260);
        case 3: return RandomText(random, kCode39Alphabet, 0, 30);
        case 4: return RandomText(random, kCodabarAlphabet, 0, 30);
        case 5: return RandomText(random, "0123456789~m()\xca", 0, 40);
        case 6: return RandomText(random, std::string("0123456789A\0", 12), 0, 20);
        default: return RandomText(random, kDigitCharacters, 0, 20);
    }
}

double RandomRatio(std::mt19937& random) {
    constexpr double kRatios[] = {3.0, 2.5, 2.0, 0.0, 2.75};
    return kRatios[random() % std::size(kRatios)];
}

bool IsPrintable(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= 0x20 && c <= 0x7E; });
}

std::string UpToNul(const std::string& text) {
    return text.substr(0, text.find('\0'));
}

/** What a type answers where its builder's status is not zero. */
void CheckRefused(const Type& type, const std::string& text, const Result& result) {
    EXPECT_EQ(result.data, "** Barcode Process Error **");
    const bool hasUndrawableBytes = type.code == 22 && result.status == kInternalError;
    const bool isEmpty = text.empty() && result.status == kEmptyData;
    EXPECT_TRUE(hasUndrawableBytes || isEmpty) << result.status;
}

void CheckResult(const Type& type, const std::string& data, uint16 check, const Result& result) {
    if (!type.takesLength(data.size())) {
        const Result expected{kBadLength, "** Barcode Length Error **", type.lengthHint,
                              "text before"};
        EXPECT_EQ(result, expected);
    } else if (!type.takesCharacters(data)) {
        const Result expected{kInvalidData, "** Barcode Data Error **", type.dataHint,
                              "text before"};
        EXPECT_EQ(result, expected);
    } else {
        const std::string text = UpToNul(type.normalised(data, check != 0));
        EXPECT_EQ(result.hint, "");
        EXPECT_EQ(result.humanReadable, text);
        EXPECT_TRUE(IsPrintable(result.data));
        if (result.status != kEncoded) CheckRefused(type, text, result);
    }
}

class FrontTest : public testing::Test {
  protected:
    TestHost host;
};

TEST_F(FrontTest, RandomBytes) {
    std::mt19937 random(3);
    for (const Type& type : Types()) {
        int encoded = 0;
        for (int round = 0; round < 3000; ++round) {
            const std::string data = RandomData(random);
            const auto check = static_cast<uint16>(random() % 3);
            const double ratio = RandomRatio(random);
            SCOPED_TRACE(std::string(type.name) + testing::PrintToString(data));
            const Result result = Encode(type.code, data, check, ratio);
            CheckResult(type, data, check, result);
            EXPECT_EQ(Encode(type.code, data, check, ratio), result);
            if (testing::Test::HasFailure()) return;
            encoded += result.status == kEncoded;
        }
        EXPECT_GT(encoded, 50) << type.name;
    }
}

TEST_F(FrontTest, RandomBytesForPostnet) {
    std::mt19937 random(30);
    for (int round = 0; round < 3000; ++round) {
        const std::string data = RandomData(random);
        const auto check = static_cast<uint16>(random() % 3);
        SCOPED_TRACE(testing::PrintToString(data));
        const Result result = Encode(30, data, check, 2.0);
        const int32 status = data.size() > 255       ? kBadData
                             : UpToNul(data).empty() ? kEmptyData
                                                     : kEncoded;
        ASSERT_EQ(result.status, status);
        ASSERT_EQ(result.data == "***Bad Zip Code***", status != kEncoded);
        ASSERT_TRUE(IsPrintable(result.data));
        ASSERT_EQ(result.hint, "hint before");
        ASSERT_EQ(result.humanReadable, "text before");
        ASSERT_EQ(Encode(30, data, check, 2.0), result);
    }
}

TEST_F(FrontTest, BytesFrom128To191AreWhatCode128CannotDraw) {
    for (int byte = 1; byte < 256; ++byte) {
        const bool canBeDrawn = byte < 128 || byte > 191;
        EXPECT_EQ(Encode(22, std::string("A") + static_cast<char>(byte), 0, 2.0).status,
                  canBeDrawn ? kEncoded : kInternalError)
            << byte;
    }
}

TEST_F(FrontTest, ARatioThatIsNoneCountsAsTwo) {
    const double none[] = {std::numeric_limits<double>::quiet_NaN(),
                           std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity(), std::nextafter(3.0, 4.0),
                           std::nextafter(2.5, 2.0)};
    for (const uint16 code : std::initializer_list<uint16>{20, 21, 24, 27}) {
        const Result expected = Encode(code, "12345", 1, 2.0);
        EXPECT_EQ(expected.status, kEncoded);
        for (const double ratio : none) EXPECT_EQ(Encode(code, "12345", 1, ratio), expected);
    }
}

TEST_F(FrontTest, NobodyWantsHintOrText) {
    for (const Type& type : Types()) {
        for (const char* const data : {"", "03600029145", "A", "036000291450360002914503"}) {
            TestBlock block(data);
            const int32 status = (*encoders)[type.code]({block.Data(), 0, 2.0, nullptr, nullptr});
            EXPECT_EQ(status, Encode(type.code, data, 0, 2.0).status) << type.name << data;
            EXPECT_EQ(block.Text(), Encode(type.code, data, 0, 2.0).data) << type.name << data;
        }
    }
}

/** Lengths that are negative as signed numbers are too long like others. */
TEST_F(FrontTest, LengthsOfHalfTheRangeAndMore) {
    for (const Type& type : Types()) {
        for (const uint32 length : {0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
            TestBlock block("1");
            block.length = length;
            EXPECT_EQ((*encoders)[type.code]({block.Data(), 0, 2.0, nullptr, nullptr}), kBadLength);
            EXPECT_EQ(block.Text(), "** Barcode Length Error **");
        }
    }
}

/** The data stays as it is, at most converted and trimmed, when the n-th allocation fails. */
TEST_F(FrontTest, WithoutMemoryTheDataStays) {
    std::vector<const char*> names;
    for (const Type& type : Types()) names.push_back(type.name);
    names.push_back("_QVT_BARCODE_POSTNET_");
    for (const char* const name : names) {
        for (const std::string digits : {"03600029145", "x\xc2\xa9", "1"}) {
            const std::string data = " " + digits + " ";
            constexpr uint32 kAllocations = 3;  // conversion, trimming, result
            for (uint32 n = 1; n <= kAllocations + 1; ++n) {
                TestBlock block(data);
                host::Faults::FailAllocation(n);
                const int16 status =
                    EncodeBarcodeData(&block.bytes, MakePString(name), &block.length, 1, nullptr, 0,
                                      2.0, 0, nullptr, nullptr);
                host::Faults::FailAllocation(0);
                if (n > kAllocations) {
                    EXPECT_NE(block.Text(), data) << name;
                    continue;
                }
                EXPECT_EQ(status, kInternalError) << name << n;
                const std::string converted = digits[0] == 'x' ? "x\xa9" : digits;
                const std::string expected[] = {data, " " + converted + " ", converted};
                EXPECT_EQ(block.Text(), expected[n - 1]) << name << n;
            }
        }
    }
}

}  // namespace

}  // namespace linewright
