#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/EncodeBarcodeData.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"
#include "tests/classic/ClassicTypes.h"

namespace linewright {

namespace {

/** Any length up to 300, or one that a symbology of fixed length takes. */
std::size_t RandomLength(std::mt19937& random) {
    constexpr std::size_t kFixed[] = {5, 7, 9, 11, 12, 13, 14, 16, 17, 20, 25, 29, 31};
    return random() % 2 ? random() % 300 : kFixed[random() % std::size(kFixed)];
}

/** Bytes of any value, or such that often make a symbol. */
std::string RandomData(std::mt19937& random) {
    static const std::string alphabets[] = {"0123456789", "0123456789", "0123456789ABCDEF $/+%-.",
                                            "0123456789abc:'~ \t\x80"};
    const std::size_t kind = random() % (std::size(alphabets) + 1);
    std::string data;
    for (std::size_t length = RandomLength(random); length > 0; --length) {
        const std::size_t number = random();
        data += kind == std::size(alphabets) ? static_cast<char>(number % 256)
                                             : alphabets[kind][number % alphabets[kind].size()];
    }
    return data;
}

void SetRandomPreferences(std::mt19937& random) {
    preferences.code39CheckMode = static_cast<uint16>(random() % 4);
    preferences.code39UseAsterisk = static_cast<uint8>(random() % 2);
    preferences.i2of5CheckDigit = static_cast<uint8>(random() % 2);
    preferences.msiFirstCheck = static_cast<int16>(random() % 5 - 1);
    preferences.msiSecondCheck = static_cast<int16>(random() % 5 - 1);
    preferences.codabarStart = static_cast<uint16>('A' + random() % 4);
    preferences.codabarStop = static_cast<uint16>('A' + random() % 4);
}

/** Whether this is one of the stated answers to refused data. */
bool IsRefusal(const ClassicType& type, int16 status, const std::string& text,
               const std::string& data) {
    if (type.name == "_BARCODE_USPS_IM_" && status == kBadLength && text == data) return true;
    return std::any_of(type.refusals.begin(), type.refusals.end(), [&](const Refusal& refusal) {
        return refusal.marker == text && refusal.status == status;
    });
}

TEST(ClassicRandomBytes, AreEncodedOrRefusedAsStated) {
    const TestHost host;
    const KeptPreferences kept;
    std::mt19937 random(2026);
    for (const ClassicType& type : ClassicTypes()) {
        int encoded = 0;
        int refused = 0;
        for (int count = 0; count < 4000; ++count) {
            SetRandomPreferences(random);
            const std::string data = RandomData(random);
            TestBlock block(data);
            const int16 status = EncodeClassic(type, block.Data());
            const std::string text = block.Text();
            if (status == kEncoded) {
                ++encoded;
                ASSERT_FALSE(text.starts_with("***")) << type.name;
            } else {
                ++refused;
                ASSERT_TRUE(IsRefusal(type, status, text, data))
                    << type.name << ' ' << status << ' ' << testing::PrintToString(data);
            }
        }
        EXPECT_GT(encoded, 10) << type.name;
        EXPECT_GT(refused, 100) << type.name;
    }
}

TEST(ClassicRandomBytes, PassTheDispatcherToo) {
    const TestHost host;
    std::mt19937 random(2027);
    for (const ClassicType& type : ClassicTypes()) {
        for (int count = 0; count < 1000; ++count) {
            TestBlock block(RandomData(random));
            uint16 recognised = 0;
            PMString hint;
            PMString humanReadable;
            EncodeBarcodeData(&block.bytes, MakePString(type.name), &block.length, random() % 2,
                              &recognised, 1, 2.0, 0, &hint, &humanReadable);
            ASSERT_EQ(recognised, 1) << type.name;
        }
    }
}

}  // namespace

}  // namespace linewright
