#include "core/EncodeBarcodeData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CAlert.h"
#include "core/EncoderTable.h"
#include "core/PreferencesRecord.h"
#include "core/Status.h"
#include "tests/HostStrings.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"

namespace linewright {

namespace {

int16 Encode(TestBlock& block, const char* type, uint16 showAlerts = 0, PMString* hint = nullptr,
             uint64 options = 0) {
    return EncodeBarcodeData(&block.bytes, MakePString(type), &block.length, options, nullptr, 0,
                             2.0, showAlerts, hint, nullptr);
}

/** A table in which every type code answers with one status, for the length of a test. */
class OwnEncoders {
  public:
    explicit OwnEncoders(Encoder encoder) {
        table.fill(encoder);
        encoders = &table;
    }
    OwnEncoders(const OwnEncoders&) = delete;
    OwnEncoders& operator=(const OwnEncoders&) = delete;
    ~OwnEncoders() { encoders = saved; }

  private:
    EncoderTable table{};
    const EncoderTable* saved = encoders;
};

class EncodeBarcodeDataTest : public testing::Test {
  protected:
    ~EncodeBarcodeDataTest() override { preferences = kDefaultPreferences; }

    std::vector<std::string> Alerts() const {
        std::vector<std::string> texts;
        for (const auto& alert : host.recorder.alerts) {
            EXPECT_EQ(alert.kind, host::AlertKind::kError);
            texts.push_back(alert.text);
        }
        return texts;
    }

    TestHost host;
};

constexpr const char* kEan8Text = "0x122100kLWRUtilityTypePopupItem23Key";

TEST_F(EncodeBarcodeDataTest, ACodeWithoutEncoderIsNotSupported) {
    const OwnEncoders none(nullptr);
    TestBlock block("12");
    EXPECT_EQ(Encode(block, "_BARCODE_EAN8_"), -1);
    EXPECT_EQ(block.Text(), "NOT SUPPORTED");
}

TEST_F(EncodeBarcodeDataTest, HandsOnAllThatAnEncoderNeeds) {
    static EncoderArguments const* seen = nullptr;
    const OwnEncoders own([](const EncoderArguments& a) -> int32 {
        seen = &a;
        EXPECT_EQ(a.data.View(), "12");
        EXPECT_EQ(a.checkCharacter, 0x1234);
        EXPECT_EQ(a.ratio, 2.5);
        a.hint->SetCString("hint");
        a.humanReadable->SetCString("text");
        return 0x12340000;
    });
    TestBlock block(" 12");
    PMString hint;
    PMString humanReadable;
    uint16 recognised = 0;
    EXPECT_EQ(EncodeBarcodeData(&block.bytes, MakePString("_BARCODE_EAN8_"), &block.length, 0x100,
                                &recognised, 0x1234, 2.5, 0, &hint, &humanReadable),
              0);
    EXPECT_NE(seen, nullptr);
    EXPECT_EQ(recognised, 1);
    EXPECT_EQ(Latin1(hint), "hint");
    EXPECT_EQ(Latin1(humanReadable), "text");
}

TEST_F(EncodeBarcodeDataTest, KeepsTheLow16BitsOfAResult) {
    const OwnEncoders own([](const EncoderArguments&) -> int32 { return 65535; });
    TestBlock block("12");
    EXPECT_EQ(Encode(block, "_BARCODE_EAN8_"), -1);
}

TEST_F(EncodeBarcodeDataTest, ReadsOnlyTheLow8BitsOfTheOptions) {
    const OwnEncoders own([](const EncoderArguments&) -> int32 { return 0; });
    TestBlock plain("\xC3\xA9");
    Encode(plain, "_BARCODE_EAN8_", 0, nullptr, 0xFFFFFFFFFFFFFF00);
    EXPECT_EQ(plain.Text(), "\xC3\xA9");
    TestBlock converted("\xC3\xA9");
    Encode(converted, "_BARCODE_EAN8_", 0, nullptr, 0x80);
    EXPECT_EQ(converted.Text(), "\xE9");
}

TEST_F(EncodeBarcodeDataTest, RecognisedIsNeverCleared) {
    TestBlock block("12");
    uint16 recognised = 7;
    EncodeBarcodeData(&block.bytes, MakePString("_NONE_"), &block.length, 0, &recognised, 0, 2.0, 0,
                      nullptr, nullptr);
    EXPECT_EQ(recognised, 7);
}

TEST_F(EncodeBarcodeDataTest, AnUnknownTypeRaisesNoAlert) {
    TestBlock block("12");
    EXPECT_EQ(Encode(block, "_NONE_", 1), 0);
    EXPECT_THAT(Alerts(), testing::IsEmpty());
}

TEST_F(EncodeBarcodeDataTest, DataOfAnUnknownTypeIsTrimmedWhileThereIsMemory) {
    TestBlock block(" 12 ");
    EXPECT_EQ(Encode(block, "_NONE_", 1), 0);
    EXPECT_EQ(block.Text(), "12");

    TestBlock untrimmed(" 12 ");
    host::Faults::FailAllocation(1);
    EXPECT_EQ(Encode(untrimmed, "_NONE_", 1), 0);
    EXPECT_EQ(untrimmed.Text(), " 12 ");
    EXPECT_THAT(Alerts(), testing::IsEmpty());
}

TEST_F(EncodeBarcodeDataTest, AKnownTypeFailsWithoutMemoryToTrim) {
    TestBlock block(" 12 ");
    host::Faults::FailAllocation(1);
    EXPECT_EQ(Encode(block, "_BARCODE_EAN8_", 1), kInternalError);
    EXPECT_EQ(block.Text(), " 12 ");
    EXPECT_THAT(Alerts(), testing::SizeIs(1));
}

TEST_F(EncodeBarcodeDataTest, KnownFailuresNameTypeAndHint) {
    const std::pair<Encoder, const char*> failures[] = {
        {[](const EncoderArguments&) -> int32 { return kBadLength; },
         "0x122100kLWRErrorBarCodeBadLength"},
        {[](const EncoderArguments&) -> int32 { return kInvalidData; },
         "0x122100kLWRErrorBarCodeInvalidData"},
        {[](const EncoderArguments&) -> int32 { return kInternalError; },
         "0x122100kLWRErrorBarCodeInternal"},
    };
    for (const auto& [encoder, key] : failures) {
        const OwnEncoders own(encoder);
        for (const bool16 hostAlerts : {kTrue, kFalse}) {
            host.recorder.alerts.clear();
            CAlert::SetShowAlerts(hostAlerts);
            TestBlock block("12");
            PMString hint;
            hint.SetCString("a hint");
            Encode(block, "_BARCODE_EAN8_", 1, &hint);
            EXPECT_THAT(Alerts(),
                        testing::ElementsAre(std::string(key) + "|" + kEan8Text + "|a hint"));
            EXPECT_EQ(CAlert::GetShowAlerts(), hostAlerts);
        }
    }
}

TEST_F(EncodeBarcodeDataTest, WithoutAHintItsMarkerStays) {
    const OwnEncoders own([](const EncoderArguments&) -> int32 { return kBadLength; });
    TestBlock block("12");
    Encode(block, "_BARCODE_EAN8_", 1);
    EXPECT_THAT(Alerts(), testing::ElementsAre(std::string("0x122100kLWRErrorBarCodeBadLength|") +
                                               kEan8Text + "|^1"));
}

TEST_F(EncodeBarcodeDataTest, OtherFailuresShowTheDataWhileHostAlertsAreOn) {
    const OwnEncoders own(
        [](const EncoderArguments& a) -> int32 { return FinishWith(a.data, "***Bad\x80***", -4); });
    for (const bool16 hostAlerts : {kTrue, kFalse}) {
        CAlert::SetShowAlerts(hostAlerts);
        TestBlock block("12");
        EXPECT_EQ(Encode(block, "_BARCODE_EAN8_", 1), -4);
    }
    EXPECT_THAT(Alerts(),
                testing::ElementsAre("0x122100kLWRWarningBarCodeDataTranslationErrorKey|***Bad\xC2"
                                     "\x80***"));
}

TEST_F(EncodeBarcodeDataTest, LongDataIsShownByTheLowByteOfItsLength) {
    const OwnEncoders own([](const EncoderArguments&) -> int32 { return -1; });
    TestBlock block(std::string(258, 'x'));
    Encode(block, "_BARCODE_EAN8_", 1);
    TestBlock whole(std::string(256, 'x'));
    Encode(whole, "_BARCODE_EAN8_", 1);
    const std::string key = "0x122100kLWRWarningBarCodeDataTranslationErrorKey|";
    EXPECT_THAT(Alerts(), testing::ElementsAre(key + "xx", key));
}

TEST_F(EncodeBarcodeDataTest, AlertsAreShownOnlyIfCallerAndPreferencesWantThem) {
    const OwnEncoders own([](const EncoderArguments&) -> int32 { return kBadLength; });
    TestBlock block("12");
    Encode(block, "_BARCODE_EAN8_", 0);
    preferences.showErrorAlerts = 0;
    Encode(block, "_BARCODE_EAN8_", 1);
    EXPECT_THAT(Alerts(), testing::IsEmpty());
}

TEST_F(EncodeBarcodeDataTest, WithoutDataOrLengthNothingIsTouched) {
    uint16 recognised = 5;
    uint8* bytes = nullptr;
    uint32 length = 3;
    const PString type = MakePString("_BARCODE_CODE128B_");
    const auto encode = [&](uint8** data, uint32* dataLength) {
        return EncodeBarcodeData(data, type, dataLength, 1, &recognised, 0, 2.0, 1, nullptr,
                                 nullptr);
    };
    EXPECT_EQ(encode(nullptr, &length), kInternalError);
    EXPECT_EQ(encode(&bytes, nullptr), kInternalError);
    EXPECT_EQ(encode(&bytes, &length), kInternalError);
    EXPECT_EQ(bytes, nullptr);
    EXPECT_EQ(length, 3u);
    EXPECT_EQ(recognised, 5);
    EXPECT_THAT(Alerts(), testing::IsEmpty());
}

TEST_F(EncodeBarcodeDataTest, NoBlockAndNoLengthIsEmptyData) {
    uint8* bytes = nullptr;
    uint32 length = 0;
    EXPECT_EQ(EncodeBarcodeData(&bytes, MakePString("_BARCODE_CODE128B_"), &length, 1, nullptr, 0,
                                2.0, 0, nullptr, nullptr),
              0);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(bytes), length), "\x88!\x8A");
    FreeBlock(bytes);
}

struct Allocations {
    const char* data;
    uint64 options;
    uint32 count;
};

class AllocationTest : public EncodeBarcodeDataTest,
                       public testing::WithParamInterface<Allocations> {};

TEST_P(AllocationTest, OneForTheResultAndOneForEachPreparation) {
    const auto& [data, options, count] = GetParam();
    TestBlock block(data);
    const auto before = host::CountMemory();
    EXPECT_EQ(Encode(block, "_BARCODE_CODE128B_", 0, nullptr, options), 0);
    const auto after = host::CountMemory();
    EXPECT_EQ(after.allocations - before.allocations, count);
    EXPECT_EQ(after.deallocations - before.deallocations, count);
}

TEST_P(AllocationTest, WithoutMemoryTheCallerKeepsTheData) {
    const auto& [data, options, count] = GetParam();
    for (uint32 n = 1; n <= count; ++n) {
        TestBlock block(data);
        host::Faults::FailAllocation(n);
        EXPECT_EQ(Encode(block, "_BARCODE_CODE128B_", 0, nullptr, options), kInternalError);
        host::Faults::FailAllocation(0);
        EXPECT_NE(block.Text().find("12"), std::string::npos);
        EXPECT_EQ(Encode(block, "_BARCODE_CODE128B_"), 0);
        EXPECT_EQ(block.Text(),
                  "\x88"
                  "12V\x8A");
    }
}

// "12" in set B: 104 + 17 + 2 * 18 = 157, 157 mod 103 = 54, byte 86 is "V".
INSTANTIATE_TEST_SUITE_P(EncodeBarcodeData, AllocationTest,
                         testing::Values(Allocations{"12", 0, 1}, Allocations{" 12", 0, 2},
                                         Allocations{"12", 1, 2}, Allocations{"12 ", 1, 3}));

}  // namespace

}  // namespace linewright
