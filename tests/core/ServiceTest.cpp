#include <gtest/gtest.h>

#include <cstring>

#include "CreateObject.h"
#include "InterfacePtr.h"
#include "core/IORTALinewright.h"
#include "core/Status.h"
#include "tests/HostStrings.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"

// Requests as another plug-in sends them, to the loaded library.

namespace linewright {

namespace {

class ServiceTest : public testing::Test {
  protected:
    ServiceTest()
        : service(static_cast<IORTALinewright*>(
              CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT))) {
        EXPECT_NE(service.get(), nullptr);
    }

    int32 Send(uint32 code) {
        LinewrightRequest request{12345, code, &params};
        service->ProcessRequest(&request);
        EXPECT_EQ(request.code, code);
        EXPECT_EQ(request.params, &params);
        return request.result;
    }

    TestHost host;
    InterfacePtr<IORTALinewright> service;
    LinewrightRequestParams params{};
    PMString first;
    PMString second;
};

TEST_F(ServiceTest, EncodesThroughTheFourthSlotOfTheVirtualTable) {
    TestBlock block("AB");
    params.typeName = MakePString("_BARCODE_CODE128A_");
    params.slot1 = &block.bytes;
    params.dataLength = block.length;
    LinewrightRequest request{1, kEncodeRequest, &params};
    // The table of virtual functions, as a caller built by another compiler would use it.
    IORTALinewright* const object = service.get();
    using ProcessRequest = void (*)(IORTALinewright*, LinewrightRequest*);
    ProcessRequest const* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(object), sizeof table);
    table[3](object, &request);
    block.length = params.dataLength;
    EXPECT_EQ(request.result, 0);
    // 103 + 33 + 2 * 34 = 204, 204 mod 103 = 101, byte 201.
    EXPECT_EQ(block.Text(),
              "\x87"
              "AB\xC9\x8A");
}

TEST_F(ServiceTest, EncodingShowsNoAlertAndTellsWhatIsKnown) {
    TestBlock block("\xE9");
    uint16 recognised = 0;
    params.typeName = MakePString("_BARCODE_CODE128A_");
    params.slot1 = &block.bytes;
    params.slot2 = &recognised;
    params.slot3 = &first;
    params.dataLength = block.length;
    EXPECT_EQ(Send(kEncodeRequest), -1);
    block.length = params.dataLength;
    EXPECT_EQ(block.Text(), "***Bad Code 128 A***");
    EXPECT_EQ(recognised, 1);
    EXPECT_TRUE(first.IsEmpty());
    EXPECT_TRUE(host.recorder.alerts.empty());
}

TEST_F(ServiceTest, EncodingWithoutADataReferenceFails) {
    uint16 recognised = 0;
    params.typeName = MakePString("_BARCODE_CODE128A_");
    params.slot2 = &recognised;
    EXPECT_EQ(Send(kEncodeRequest), kInternalError);
    uint8* noBlock = nullptr;
    params.slot1 = &noBlock;
    params.dataLength = 1;
    EXPECT_EQ(Send(kEncodeRequest), kInternalError);
    EXPECT_EQ(noBlock, nullptr);
    EXPECT_EQ(params.dataLength, 1u);
    EXPECT_EQ(recognised, 0);
}

TEST_F(ServiceTest, NamesTheClassicTypes) {
    const char* const names[] = {
        "_BARCODE_POSTNET_",    "_BARCODE_USPS_IM_",     "_BARCODE_CODABAR_",
        "_BARCODE_CODE128A_",   "_BARCODE_CODE128B_",    "_BARCODE_CODE128C_",
        "_BARCODE_CODE39_",     "_BARCODE_CODE39ASCII_", "_BARCODE_EAN13_",
        "_BARCODE_I2OF5_",      "_BARCODE_I2OF5TEXT_",   "_BARCODE_JAN13_",
        "_BARCODE_MSIPLESSEY_", "_BARCODE_UPCA_",        "_BARCODE_UPCE_"};
    for (int16 i = 0; i < 15; ++i) {
        params.typeIndex = i;
        EXPECT_EQ(Send(kClassicTypeNameRequest), 0);
        EXPECT_EQ(params.typeName.View(), names[i]);
    }
    for (const int16 i : std::initializer_list<int16>{15, 16, 29, 30, 32767, -1, -32768}) {
        params.typeIndex = i;
        params.typeName = MakePString("before");
        EXPECT_EQ(Send(kClassicTypeNameRequest), 0);
        EXPECT_EQ(params.typeName.length, 0) << i;
    }
}

TEST_F(ServiceTest, DescribesTheCurrentTypes) {
    struct {
        const char* text;
        uint16 flags[3];
    } const types[] = {
        {"3", {0, 0, 1}},  {"7", {1, 1, 1}},  {"Code128", {0, 1, 0}}, {"23", {0, 1, 0}},
        {"9", {0, 1, 0}},  {"11", {1, 1, 0}}, {"10", {1, 1, 1}},      {"12", {0, 1, 0}},
        {"13", {0, 1, 1}}, {"14", {0, 1, 0}}, {"15", {0, 1, 0}},      {"1", {0, 0, 0}},
    };
    uint16 flags[3] = {};
    params.slot1 = &first;
    params.slot2 = &flags[0];
    params.slot3 = &flags[1];
    params.slot4 = &flags[2];
    for (int16 i = 0; i < 12; ++i) {
        const auto& type = types[i];
        params.typeIndex = i;
        EXPECT_EQ(Send(kCurrentTypeRequest), 0);
        EXPECT_EQ(Latin1(first),
                  std::string("0x122100kLWRUtilityTypePopupItem") + type.text + "Key");
        for (int flag = 0; flag < 3; ++flag) EXPECT_EQ(flags[flag], type.flags[flag]) << i;
    }
    for (const int16 i : std::initializer_list<int16>{12, 14, 15, 32767, -1, -16}) {
        params.typeIndex = i;
        first = HostString("before");
        for (uint16& flag : flags) flag = 7;
        EXPECT_EQ(Send(kCurrentTypeRequest), 0);
        EXPECT_TRUE(first.IsEmpty()) << i;
        for (const uint16 flag : flags) EXPECT_EQ(flag, 7) << i;
    }
    params = {};
    EXPECT_EQ(Send(kCurrentTypeRequest), 0);
}

TEST_F(ServiceTest, FindsANameByItsDisplayText) {
    params.slot1 = &first;
    params.slot2 = &second;
    first = HostString("0x122100kLWRUtilityTypePopupItem10Key");
    EXPECT_EQ(Send(kTypeNameRequest), 0);
    EXPECT_EQ(Latin1(second), "_QVT_BARCODE_I2OF5_");
    first = HostString("no such text");
    EXPECT_EQ(Send(kTypeNameRequest), 0);
    EXPECT_TRUE(second.IsEmpty());
    second = HostString("before");
    params.slot1 = nullptr;
    EXPECT_EQ(Send(kTypeNameRequest), 0);
    EXPECT_TRUE(second.IsEmpty());
    params = {};
    EXPECT_EQ(Send(kTypeNameRequest), 0);
}

TEST_F(ServiceTest, FindsADisplayTextByTheWholeName) {
    params.slot1 = &first;
    params.slot2 = &second;
    first = HostString("_BARCODE_EAN8_");
    EXPECT_EQ(Send(kDisplayTextRequest), 0);
    EXPECT_EQ(Latin1(second), "0x122100kLWRUtilityTypePopupItem23Key");
    first = HostString("_BARCODE_EAN8_ and more");
    EXPECT_EQ(Send(kDisplayTextRequest), -1);
    EXPECT_EQ(Latin1(second), "0x122100kLWRUtilityTypePopupItem23Key");
    first = HostString("");
    EXPECT_EQ(Send(kDisplayTextRequest), 0);
    EXPECT_TRUE(second.IsEmpty());
    first = HostString(std::string(300, 'x'));
    EXPECT_EQ(Send(kDisplayTextRequest), -1);
    first = HostString("_BARCODE_EAN8_");
    params.slot2 = nullptr;
    EXPECT_EQ(Send(kDisplayTextRequest), 0);
    params.slot1 = nullptr;
    EXPECT_EQ(Send(kDisplayTextRequest), -1);
}

TEST_F(ServiceTest, NeedsAParameterBlockForSomeRequests) {
    for (const uint32 code : {kEncodeRequest, kClassicTypeNameRequest, kCurrentTypeRequest,
                              kTypeNameRequest, kDisplayTextRequest}) {
        LinewrightRequest request{0, code, nullptr};
        service->ProcessRequest(&request);
        EXPECT_EQ(request.result, kInternalError) << code;
    }
    for (const uint32 code : {kOpenDialogRequest, kNoOperationRequest}) {
        LinewrightRequest request{5, code, nullptr};
        service->ProcessRequest(&request);
        EXPECT_EQ(request.result, 0) << code;
    }
    service->ProcessRequest(nullptr);
}

TEST_F(ServiceTest, RefusesUnknownCodes) {
    for (const uint32 code : {0u, 1099u, 1107u, 0xFFFFFFFFu}) EXPECT_EQ(Send(code), -1018);
}

TEST_F(ServiceTest, OpensNoDialogWhereThereIsNone) {
    for (const auto missing :
         {host::Faults::Missing::kNothing, host::Faults::Missing::kSession,
          host::Faults::Missing::kApplication, host::Faults::Missing::kDialogManager}) {
        host::Faults::TakeAway(missing);
        EXPECT_EQ(Send(kOpenDialogRequest), 0);
    }
}

}  // namespace

}  // namespace linewright
