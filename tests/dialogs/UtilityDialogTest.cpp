#include <random>
#include <set>

#include "CAlert.h"
#include "CreateObject.h"
#include "InterfacePtr.h"
#include "core/BarcodeTypeRegistry.h"
#include "core/EncodeBarcodeData.h"
#include "core/IORTALinewright.h"
#include "plugin/TypeDescription.h"
#include "tests/TestBlock.h"
#include "tests/dialogs/DialogTest.h"

namespace linewright {

namespace {

/** The type codes in the order of the pop-up. */
constexpr std::array<int, 27> kCodes{1,  2,  3,  4,  5, 6,  7,  8,  10, 11, 12, 13, 14, 15,
                                     16, 20, 21, 22, 9, 23, 25, 24, 26, 27, 28, 29, 30};

int32 IndexOfCode(int code) {
    return static_cast<int32>(std::find(kCodes.begin(), kCodes.end(), code) - kCodes.begin());
}

/** The middles of the keys of a type's description. */
struct Description {
    std::vector<int> codes;
    const char* usage;
    const char* data;
    const char* sample;
    const char* notes;
};

const std::vector<Description> kDescriptions{
    {{1, 30}, "PostnetUsage", "NumericOnlyData", "PostnetSample", "PostnetNotes"},
    {{2}, "USPSIMUsage", "USPSIMData", "USPSIMSample", "USPSIMNotes"},
    {{3, 20}, "CodabarUsage", "CodabarData", "CodabarSample", "CodabarNotes"},
    {{4}, "GeneralPurposeUsage", "AlphaNoLowerData", "ABC123Sample", "Code128ANotes"},
    {{5, 22}, "GeneralPurposeUsage", "Code128BDataString", "ABCabc123Sample", "Code128BNotes"},
    {{6}, "GeneralPurposeUsage", "NumericOnlyData", "ZeroThruNineSample", "Code128CNotes"},
    {{7, 21}, "GeneralPurposeUsage", "Code39Data", "ABC123Sample", "Code39Notes"},
    {{8}, "GeneralPurposeUsage", "Code39ASCIIData", "ABCabc123Sample", "Code29ASCIINotes"},
    {{9}, "EAN8Usage", "EAN8Data", "SevenDigitSample", "EAN8Notes"},
    {{10, 23}, "EAN13Usage", "EAN13Data", "TwelveDigitSample", "EAN13Notes"},
    {{11, 24}, "GeneralPurposeUsage", "NumericOnlyData", "TwelveDigitSample", "I2OF5Notes"},
    {{12, 25}, "GeneralPurposeUsage", "NumericOnlyData", "TwelveDigitSample", "I2OF5TEXTNotes"},
    {{13, 26}, "JAN13Usage", "JAN13Data", "TwelveDigitSample", "JAN13Notes"},
    {{14, 27}, "MSIPlesseyUsage", "NumericOnlyData", "MSIPlesseySample", "MSIPlesseyNotes"},
    {{15, 28}, "UPCAUsage", "UPCAData", "ElevenDigitSample", "UPCANotes"},
    {{16, 29}, "UPCEUsage", "UPCEData", "ElevenDigitSample", "UPCENotes"},
};

std::string Key(const std::string& middle) {
    return "0x122100kLWRUtilityDialog" + middle + "Key";
}

/** The description of a code in the pseudo-locale. */
std::string DescriptionOf(int code) {
    const auto found =
        std::find_if(kDescriptions.begin(), kDescriptions.end(), [code](const auto& texts) {
            return std::count(texts.codes.begin(), texts.codes.end(), code) > 0;
        });
    if (found == kDescriptions.end()) throw std::invalid_argument("no such code");
    return Key("UsageLabel") + Key(found->usage) + Key("DataLabel") + Key(found->data) +
           Key("SampleLabel") + Key(found->sample) + Key("NotesLabel") + Key(found->notes);
}

bool IsOneOf(int code, std::initializer_list<int> codes) {
    return std::count(codes.begin(), codes.end(), code) > 0;
}

// What a type offers: a check digit to choose, one that is on, a ratio to choose.
bool OffersCheckDigit(int code) {
    return IsOneOf(code, {21, 24, 25});
}
bool HasCheckDigitOn(int code) {
    return IsOneOf(code, {21, 22, 9, 23, 25, 24, 26, 27, 28, 29});
}
bool OffersRatio(int code) {
    return IsOneOf(code, {20, 21, 24, 27});
}

LinewrightPrefsRecord WithLast(int typeIndex, const std::string& data) {
    LinewrightPrefsRecord record = kDefaultPreferences;
    record.lastTypeIndex = static_cast<int16>(typeIndex);
    record.lastData = MakePString(data);
    return record;
}

void Type(const ShownDialog& dialog, const std::string& text) {
    EXPECT_TRUE(At(dialog, kData).Type(HostString(text)));
}

/** Types data, presses OK and returns the result. */
std::string Convert(const ShownDialog& dialog, const std::string& data) {
    Type(dialog, data);
    EXPECT_TRUE(At(dialog, kOKButton).Press());
    return TextAt(dialog, kResult);
}

class UtilityDialogTest : public DialogTest {
  protected:
    using DialogTest::DialogTest;

    void ExpectTypeIsShown(const ShownDialog& dialog, int index) {
        const int code = kCodes[static_cast<std::size_t>(index)];
        SCOPED_TRACE(testing::Message() << "code " << code);
        EXPECT_EQ(At(dialog, kType).GetSelected(), index);
        EXPECT_EQ(TextAt(dialog, kDescription), DescriptionOf(code));
        EXPECT_EQ(At(dialog, kCheckDigit).IsEnabled(), OffersCheckDigit(code));
        EXPECT_EQ(At(dialog, kCheckDigit).GetState(), HasCheckDigitOn(code) ? 2 : 0);
        EXPECT_EQ(At(dialog, kRatioLabel).IsEnabled(), OffersRatio(code));
        EXPECT_EQ(At(dialog, kRatio).IsEnabled(), OffersRatio(code));
        EXPECT_EQ(At(dialog, kRatio).GetSelected(), 0);
    }
    std::vector<std::string> Alerts() const {
        std::vector<std::string> texts;
        for (const auto& alert : host->recorder.alerts) {
            EXPECT_EQ(alert.kind, host::AlertKind::kError);
            texts.push_back(alert.text);
        }
        return texts;
    }
};

TEST_F(UtilityDialogTest, OffersTheLastTypeAndData) {
    Start(WithLast(16, "AB\xE9"));
    const ShownDialog& dialog = OpenUtility();
    EXPECT_EQ(dialog.GetType(), IDialog::kModeless);
    EXPECT_EQ(Latin1(dialog.GetTitle()), "0x122100kLWRUtilityDialogTitleKey");
    ExpectTypeIsShown(dialog, 16);
    EXPECT_EQ(TextAt(dialog, kData), "AB\xE9");
    EXPECT_EQ(TextAt(dialog, kResult), "");
    EXPECT_EQ(dialog.GetDefaultButton(), dialog.FindShown(kOKButton));
    EXPECT_EQ(dialog.GetCancelButton(), dialog.FindShown(kCancelButton));
}

TEST_F(UtilityDialogTest, ListsTheNamedTypesInTheirOrder) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    ASSERT_EQ(At(dialog, kType).CountItems(), 27);
    for (int32 i = 0; i < 27; ++i) {
        EXPECT_EQ(Latin1(At(dialog, kType).GetItem(i)),
                  Latin1(registry[static_cast<std::size_t>(i)].displayText));
        EXPECT_TRUE(At(dialog, kType).IsItemEnabled(i));
    }
}

TEST_F(UtilityDialogTest, ItsRatiosStandInTheirOrder) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    ASSERT_EQ(At(dialog, kRatio).CountItems(), 3);
    EXPECT_EQ(Latin1(At(dialog, kRatio).GetItem(0)), Key("Ratio20"));
    EXPECT_EQ(Latin1(At(dialog, kRatio).GetItem(1)), Key("Ratio25"));
    EXPECT_EQ(Latin1(At(dialog, kRatio).GetItem(2)), Key("Ratio30"));
}

TEST_F(UtilityDialogTest, AStoredTypeThatItCannotShowSelectsTheFirst) {
    for (const int stored : {0, 1, 26, 27, 29, 30, 32767, -1, -32768}) {
        Start(WithLast(stored, "1"));
        ExpectTypeIsShown(OpenUtility(), stored >= 0 && stored < 27 ? stored : 0);
    }
}

TEST_F(UtilityDialogTest, EveryTypeHasItsDescriptionAndOptions) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    for (int32 index = 26; index >= 0; --index) {
        EXPECT_TRUE(At(dialog, kType).Choose(index));
        ExpectTypeIsShown(dialog, index);
        // Opened anew it begins with the type chosen last.
        ExpectTypeIsShown(OpenUtility(), index);
    }
}

TEST_F(UtilityDialogTest, AChangeOfTypeResetsTheRatio) {
    Start(WithLast(IndexOfCode(21), "1"));
    const ShownDialog& dialog = OpenUtility();
    for (const int code : {24, 27, 1, 20, 21}) {
        EXPECT_EQ(At(dialog, kRatio).Choose(2), At(dialog, kRatio).IsEnabled());
        At(dialog, kCheckDigit).Tick(false);
        EXPECT_TRUE(At(dialog, kType).Choose(IndexOfCode(code)));
        ExpectTypeIsShown(dialog, IndexOfCode(code));
    }
    // The type that is chosen already is no change.
    EXPECT_TRUE(At(dialog, kRatio).Choose(1));
    EXPECT_TRUE(At(dialog, kType).Choose(IndexOfCode(21)));
    EXPECT_EQ(At(dialog, kRatio).GetSelected(), 1);
}

TEST_F(UtilityDialogTest, CodesWithoutATypeHaveLabelsOrNothing) {
    const TestHost running;
    const std::string labels =
        Key("UsageLabel") + Key("DataLabel") + Key("SampleLabel") + Key("NotesLabel");
    for (const uint16 code : std::initializer_list<uint16>{0, 31, 32, 255, 65535})
        EXPECT_EQ(Latin1(DescribeType(code)), labels) << code;
    for (const uint16 code : std::initializer_list<uint16>{17, 18, 19})
        EXPECT_EQ(Latin1(DescribeType(code)), "") << code;
    for (const int code : kCodes)
        EXPECT_EQ(Latin1(DescribeType(static_cast<uint16>(code))), DescriptionOf(code)) << code;
}

TEST_F(UtilityDialogTest, ConvertsAndStaysOpen) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    At(dialog, kType).Choose(IndexOfCode(4));
    // 103 + 33 + 2 * 34 = 204, 204 mod 103 = 101, byte 201.
    EXPECT_EQ(Convert(dialog, "AB"),
              "\x87"
              "AB\xC9\x8A");
    EXPECT_EQ(TextAt(dialog, kData), "AB");
    EXPECT_TRUE(dialog.IsOpen());
    // 103 + 33 = 136, 136 mod 103 = 33, byte 65.
    EXPECT_EQ(Convert(dialog, "A"),
              "\x87"
              "AA\x8A");
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_TRUE(host->recorder.alerts.empty());
}

TEST_F(UtilityDialogTest, TheHumanReadableTextComesBackIntoTheDataField) {
    Start(WithLast(IndexOfCode(23), ""));
    const ShownDialog& dialog = OpenUtility();
    // The digits without the check digit, and filled up to twelve.
    Convert(dialog, "4006381333931");
    EXPECT_EQ(TextAt(dialog, kData), "400638133393");
    Convert(dialog, "12");
    EXPECT_EQ(TextAt(dialog, kData), "000000000012");
    // What was typed is what is offered again, not what came back.
    EXPECT_EQ(TextAt(OpenUtility(), kData), "12");
}

TEST_F(UtilityDialogTest, HasCheckDigitAndRatioAsChosen) {
    Start(WithLast(IndexOfCode(21), ""));
    const ShownDialog& dialog = OpenUtility();
    for (const bool hasCheckDigit : {true, false}) {
        for (int32 item = 0; item < 3; ++item) {
            constexpr double kRatios[]{2.0, 2.5, 3.0};
            EXPECT_TRUE(At(dialog, kCheckDigit).Tick(hasCheckDigit));
            EXPECT_TRUE(At(dialog, kRatio).Choose(item));
            TestBlock block("CODE 39");
            EXPECT_EQ(
                EncodeBarcodeData(&block.bytes, MakePString("_QVT_BARCODE_CODE39_"), &block.length,
                                  0, nullptr, hasCheckDigit, kRatios[item], 0, nullptr, nullptr),
                0);
            EXPECT_EQ(Convert(dialog, "CODE 39"), block.Text());
        }
    }
}

TEST_F(UtilityDialogTest, KeepsTheLastDataForTheNextTime) {
    Start();
    EXPECT_EQ(TextAt(OpenUtility(), kData), "Test Data");
    {
        const ShownDialog& dialog = OpenUtility();
        At(dialog, kType).Choose(IndexOfCode(5));
        Convert(dialog, "twice");
        Type(dialog, "not converted");
        EXPECT_TRUE(At(dialog, kCancelButton).Press());
    }
    EXPECT_EQ(TextAt(OpenUtility(), kData), "twice");
    // The file follows with the preferences.
    EXPECT_EQ(SavedPreferences().lastData.View(), "Test Data");
    UsePreferences([](ShownDialog& dialog) { At(dialog, kOKButton).Press(); });
    EXPECT_EQ(SavedPreferences().lastData.View(), "twice");
    EXPECT_EQ(SavedPreferences().lastTypeIndex, IndexOfCode(5));
}

TEST_F(UtilityDialogTest, AnEmptyDataFieldIsData) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    for (const int code : kCodes) {
        At(dialog, kType).Choose(IndexOfCode(code));
        const auto& entry = registry[static_cast<std::size_t>(IndexOfCode(code))];
        TestBlock block("");
        EncodeBarcodeData(&block.bytes, entry.name, &block.length, 0, nullptr,
                          HasCheckDigitOn(code), 2.0, 0, nullptr, nullptr);
        EXPECT_EQ(Convert(dialog, ""), block.Text()) << code;
    }
    EXPECT_EQ(TextAt(OpenUtility(), kData), "");
}

TEST_F(UtilityDialogTest, ReportsWhatTheEncoderRefuses) {
    Start(WithLast(IndexOfCode(23), ""));
    const ShownDialog& dialog = OpenUtility();
    EXPECT_EQ(Convert(dialog, "12x4"), "** Barcode Data Error **");
    ASSERT_EQ(Alerts().size(), 1u);
    EXPECT_EQ(Alerts()[0],
              "0x122100kLWRErrorBarCodeInvalidData|0x122100kLWRUtilityTypePopupItem9Key|"
              "0x122100kLWRBarCodeDataDigitsOnlyHint");
    EXPECT_EQ(TextAt(dialog, kData), "12x4");
    EXPECT_TRUE(dialog.IsOpen());

    EXPECT_EQ(Convert(dialog, "12345678901234"), "** Barcode Length Error **");
    ASSERT_EQ(Alerts().size(), 2u);
    EXPECT_THAT(Alerts()[1], testing::StartsWith("0x122100kLWRErrorBarCodeBadLength|"
                                                 "0x122100kLWRUtilityTypePopupItem9Key|"));
}

TEST_F(UtilityDialogTest, ReportsKnownFailuresEvenWhileTheHostShowsNoAlerts) {
    Start(WithLast(IndexOfCode(23), ""));
    const ShownDialog& dialog = OpenUtility();
    CAlert::SetShowAlerts(kFalse);
    Convert(dialog, "x");
    EXPECT_EQ(Alerts().size(), 1u);
    At(dialog, kType).Choose(IndexOfCode(4));
    EXPECT_EQ(Convert(dialog, "\xE9"), "***Bad Code 128 A***");
    EXPECT_EQ(Alerts().size(), 1u);
    CAlert::SetShowAlerts(kTrue);
    Convert(dialog, "\xE9");
    ASSERT_EQ(Alerts().size(), 2u);
    EXPECT_EQ(Alerts()[1],
              "0x122100kLWRWarningBarCodeDataTranslationErrorKey|***Bad Code 128 A***");
}

TEST_F(UtilityDialogTest, ReportsNothingWhereThePreferencesSaySo) {
    LinewrightPrefsRecord record = WithLast(IndexOfCode(23), "");
    record.showErrorAlerts = 0;
    Start(record);
    const ShownDialog& dialog = OpenUtility();
    EXPECT_EQ(Convert(dialog, "x"), "** Barcode Data Error **");
    At(dialog, kType).Choose(IndexOfCode(4));
    EXPECT_EQ(Convert(dialog, "\xE9"), "***Bad Code 128 A***");
    EXPECT_TRUE(Alerts().empty());
}

TEST_F(UtilityDialogTest, TheDataFieldTakes255CharactersUpTo255) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    const host::ShownWidget& data = At(dialog, kData);
    EXPECT_EQ(data.GetMaxLength(), 255);
    EXPECT_EQ(data.GetMaxCharacter(), 255u);

    Type(dialog, std::string(255, 'A'));
    EXPECT_EQ(host->recorder.beeps, 0);
    Type(dialog, std::string(256, 'A'));
    EXPECT_EQ(host->recorder.beeps, 1);
    EXPECT_EQ(TextAt(dialog, kData), std::string(255, 'A'));
    // What is typed into the middle of a full field is refused, not what stands behind it.
    Type(dialog, std::string(100, 'A') + "B" + std::string(155, 'A'));
    EXPECT_EQ(host->recorder.beeps, 2);
    EXPECT_EQ(TextAt(dialog, kData), std::string(255, 'A'));
    // What replaces a part takes its place.
    Type(dialog, std::string(100, 'A') + "BCD" + std::string(153, 'A'));
    EXPECT_EQ(host->recorder.beeps, 3);
    EXPECT_EQ(TextAt(dialog, kData), std::string(100, 'A') + "BC" + std::string(153, 'A'));

    Type(dialog, "a\xFF\x80z");
    EXPECT_EQ(host->recorder.beeps, 3);
    PMString text = HostString("ab");
    for (const UTF32TextChar refused : std::initializer_list<UTF32TextChar>{0x100, 0x20AC, 0x1F600})
        text.AppendW(refused);
    text.Append("c");
    EXPECT_TRUE(At(dialog, kData).Type(text));
    EXPECT_EQ(host->recorder.beeps, 4);
    EXPECT_EQ(TextAt(dialog, kData), "abc");
}

TEST_F(UtilityDialogTest, ALongHumanReadableTextIsCutWhenItIsConvertedAgain) {
    Start(WithLast(IndexOfCode(21), ""));
    const ShownDialog& dialog = OpenUtility();
    Convert(dialog, std::string(255, 'A'));
    const std::string humanReadable = TextAt(dialog, kData);
    EXPECT_GE(humanReadable.size(), 255u);
    EXPECT_TRUE(At(dialog, kOKButton).Press());
    EXPECT_EQ(TextAt(OpenUtility(), kData), humanReadable.substr(0, 255));
}

TEST_F(UtilityDialogTest, OpensThePreferences) {
    Start(WithLast(IndexOfCode(8), ""));
    const ShownDialog& dialog = OpenUtility();
    const std::string withModulo43 = Convert(dialog, "ABC123");
    int opened = 0;
    host->recorder.useDialog = [&](ShownDialog& inner) {
        ++opened;
        EXPECT_EQ(inner.GetResourceID(), kPrefsDialogResourceID);
        EXPECT_EQ(inner.GetType(), IDialog::kMovableModal);
        EXPECT_TRUE(At(inner, 0x122107).Choose(0));
        EXPECT_TRUE(At(inner, kOKButton).Press());
    };
    EXPECT_TRUE(At(dialog, kPreferencesButton).Press());
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(dialog.IsOpen());
    const std::string withoutCheck = Convert(dialog, "ABC123");
    EXPECT_EQ(withoutCheck.size() + 1, withModulo43.size());
}

TEST_F(UtilityDialogTest, TheSpareButtonIsThereAndNotShown) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    EXPECT_FALSE(At(dialog, kSpareButton).IsVisible());
    EXPECT_FALSE(At(dialog, kSpareButton).Press());
    for (int32 i = 0; i < dialog.CountWidgets(); ++i) {
        const host::ShownWidget* const widget = dialog.GetWidget(i);
        EXPECT_EQ(widget->IsVisible(), widget->GetID() != kSpareButton);
    }
}

TEST_F(UtilityDialogTest, ClosesByCancelAndByTheCloseBox) {
    struct Listener : host::DialogListener {
        int changes = 0;
        int closed = 0;
        void WidgetChanged(host::ShownWidget&) override { ++changes; }
        void DialogClosed() override { ++closed; }
    };
    Start();
    for (const bool byCloseBox : {false, true}) {
        ShownDialog& dialog = OpenUtility();
        Listener listener;
        dialog.SetListener(&listener);
        Type(dialog, "1");
        EXPECT_EQ(listener.changes, 1);
        EXPECT_TRUE(At(dialog, kOKButton).Press());
        EXPECT_EQ(listener.closed, 0);
        if (byCloseBox) {
            dialog.PressCloseBox();
        } else {
            At(dialog, kCancelButton).Press();
        }
        EXPECT_EQ(listener.closed, 1);
    }
}

TEST_F(UtilityDialogTest, TellsWhoeverShowsItOfEveryChange) {
    struct Listener : host::DialogListener {
        std::set<WidgetID> changed;
        void WidgetChanged(host::ShownWidget& widget) override { changed.insert(widget.GetID()); }
        void DialogClosed() override {}
    } listener;
    Start(WithLast(IndexOfCode(1), "1"));
    ShownDialog& dialog = OpenUtility();
    dialog.SetListener(&listener);
    At(dialog, kType).Choose(IndexOfCode(21));
    EXPECT_THAT(listener.changed, testing::UnorderedElementsAre(kType, kDescription, kCheckDigit,
                                                                kRatioLabel, kRatio));
    listener.changed.clear();
    At(dialog, kOKButton).Press();
    EXPECT_THAT(listener.changed, testing::UnorderedElementsAre(kResult, kData));
    dialog.SetListener(nullptr);
}

TEST_F(UtilityDialogTest, WithoutMemoryTheResultStays) {
    Start(WithLast(IndexOfCode(4), "A"));
    const ShownDialog& dialog = OpenUtility();
    const std::string result = Convert(dialog, "A");
    Type(dialog, "B");
    host::Faults::FailAllocation(1);
    EXPECT_TRUE(At(dialog, kOKButton).Press());
    EXPECT_EQ(TextAt(dialog, kResult), result);
    host::Faults::FailAllocation(2);
    EXPECT_TRUE(At(dialog, kOKButton).Press());
    EXPECT_EQ(TextAt(dialog, kResult), "B");
    ASSERT_EQ(Alerts().size(), 2u);
    for (const std::string& alert : Alerts())
        EXPECT_THAT(alert, testing::StartsWith("0x122100kLWRErrorBarCodeInternal|"));
}

/** What request 1100 makes of data. */
struct Answer {
    int32 status;
    std::string bytes;
};

Answer Request(const PString& name, const std::string& data, bool check, double ratio) {
    const InterfacePtr<IORTALinewright> service(
        static_cast<IORTALinewright*>(CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT)));
    TestBlock block(data);
    LinewrightRequestParams params{};
    params.typeName = name;
    params.checkCharacter = check;
    params.ratio = ratio;
    params.slot1 = &block.bytes;
    params.dataLength = block.length;
    LinewrightRequest request{0, kEncodeRequest, &params};
    service->ProcessRequest(&request);
    block.length = params.dataLength;
    return {request.result, block.Text()};
}

/** Data that many types take, and some that they do not. */
std::string RandomData(std::mt19937& random) {
    static const std::vector<std::string> kAlphabets = [] {
        std::string all;
        for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
        return std::vector<std::string>{"0123456789",        "0123456789",
                                        "0123456789-$:/.+ ", "ABCXYZ0189 -.$/+%",
                                        all.substr(32, 95),  all};
    }();
    const auto upTo = [&](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(random);
    };
    const std::string& alphabet = kAlphabets[upTo(kAlphabets.size() - 1)];
    std::string data(upTo(9) == 0 ? upTo(255) : upTo(20), '\0');
    for (char& c : data) c = alphabet[upTo(alphabet.size() - 1)];
    return data;
}

TEST_F(UtilityDialogTest, ItsResultIsThatOfARequest) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    std::mt19937 random(251);
    int encoded = 0;
    std::set<int> encodedCodes;
    for (int i = 0; i < 1000; ++i) {
        const int code = kCodes[static_cast<std::size_t>(i) % kCodes.size()];
        EXPECT_TRUE(At(dialog, kType).Choose(IndexOfCode(code)));
        const int32 item = OffersRatio(code) ? static_cast<int32>(random() % 3) : 0;
        bool check = HasCheckDigitOn(code);
        EXPECT_EQ(At(dialog, kRatio).Choose(item), OffersRatio(code));
        if (OffersCheckDigit(code)) {
            check = random() % 2 == 0;
            EXPECT_TRUE(At(dialog, kCheckDigit).Tick(check));
        }
        const std::string data = RandomData(random);
        const double ratio = std::array{2.0, 2.5, 3.0}[static_cast<std::size_t>(item)];
        const PString& name = registry[static_cast<std::size_t>(IndexOfCode(code))].name;
        SCOPED_TRACE(testing::Message() << "code " << code << testing::PrintToString(data));

        const Answer expected = Request(name, data, check, ratio);
        TestBlock block(data);
        PMString humanReadable;
        EncodeBarcodeData(&block.bytes, name, &block.length, 0, nullptr, check, ratio, 0, nullptr,
                          &humanReadable);
        host->recorder.alerts.clear();
        EXPECT_EQ(Convert(dialog, data), expected.bytes);
        EXPECT_EQ(TextAt(dialog, kData), humanReadable.IsEmpty() ? data : Latin1(humanReadable));
        EXPECT_EQ(Alerts().size(), expected.status == 0 ? 0u : 1u);
        if (expected.status != 0) continue;
        ++encoded;
        encodedCodes.insert(code);
    }
    // The inputs are worth something: many are encoded, and many are refused.
    EXPECT_GT(encoded, 200);
    EXPECT_LT(encoded, 900);
    EXPECT_GT(encodedCodes.size(), 20u);
}

class LocaleTest : public UtilityDialogTest, public testing::WithParamInterface<const char*> {
  protected:
    LocaleTest() : UtilityDialogTest(GetParam()) {}
};

TEST_P(LocaleTest, EverySampleEncodesInEachTypeThatShowsIt) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    const PMString sampleLabel(Key("SampleLabel").c_str());
    const PMString notesLabel(Key("NotesLabel").c_str());
    for (const int code : kCodes) {
        SCOPED_TRACE(testing::Message() << "code " << code);
        At(dialog, kType).Choose(IndexOfCode(code));
        // The sample as a person finds it: behind its label and before that of the notes.
        const PMString description = At(dialog, kDescription).GetText();
        const int32 label = description.IndexOfString(sampleLabel);
        ASSERT_GE(label, 0);
        const int32 begin = label + sampleLabel.CharCount();
        const int32 end = description.IndexOfString(notesLabel, begin);
        ASSERT_GE(end, begin);
        const std::string sample =
            Latin1(description)
                .substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
        EXPECT_FALSE(sample.empty());

        const PString& name = registry[static_cast<std::size_t>(IndexOfCode(code))].name;
        const Answer answer = Request(name, sample, HasCheckDigitOn(code), 2.0);
        EXPECT_EQ(answer.status, 0) << sample;
        EXPECT_EQ(Convert(dialog, sample), answer.bytes);
    }
    EXPECT_TRUE(Alerts().empty());
}

TEST_P(LocaleTest, NothingThatIsShownIsAKey) {
    Start();
    const auto expectText = [](const PMString& text) {
        EXPECT_EQ(Latin1(text).find("kLWR"), std::string::npos) << Latin1(text);
    };
    const auto expectTexts = [&](const ShownDialog& dialog) {
        expectText(dialog.GetTitle());
        for (int32 i = 0; i < dialog.CountGroups(); ++i) expectText(dialog.GetGroupTitle(i));
        for (int32 i = 0; i < dialog.CountWidgets(); ++i) {
            expectText(dialog.GetWidget(i)->GetText());
            for (int32 j = 0; j < dialog.GetWidget(i)->CountItems(); ++j)
                expectText(dialog.GetWidget(i)->GetItem(j));
        }
    };
    UsePreferences(expectTexts);
    const ShownDialog& dialog = OpenUtility();
    for (int32 i = 0; i < 27; ++i) {
        At(dialog, kType).Choose(i);
        expectTexts(dialog);
    }
    for (int32 i = 0; i < host::CountMenuItems(); ++i) {
        expectText(host::GetMenuItem(i).menu);
        expectText(host::GetMenuItem(i).text);
    }
}

TEST_P(LocaleTest, TypesAreFoundByTheirTexts) {
    Start();
    const ShownDialog& dialog = OpenUtility();
    for (int32 i = 0; i < 27; ++i) {
        const BarcodeTypeEntry* const entry = FindTypeByDisplayText(At(dialog, kType).GetItem(i));
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(entry->code, kCodes[static_cast<std::size_t>(i)]);
    }
}

INSTANTIATE_TEST_SUITE_P(All, LocaleTest, testing::Values("enUS", "deDE", "frFR", "jaJP"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace

}  // namespace linewright
