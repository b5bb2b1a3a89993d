#include "meaning/Bars.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "core/PreferencesRecord.h"
#include "meaning/TypeRules.h"
#include "tests/RandomData.h"
#include "tests/TestHost.h"
#include "tests/VectorCalls.h"
#include "tests/meaning/MadeBarcode.h"

// What is read out of font strings, of the vectors' and of random data's.

namespace linewright {

namespace {

using meaning::Bars;
using meaning::RulesOf;
using meaning::Symbol;

constexpr std::size_t kBarcodesOfType = 400;

bool Has(const Meaning& meaning, WarningReason reason) {
    return std::any_of(meaning.warnings.begin(), meaning.warnings.end(),
                       [&](const Warning& warning) { return warning.reason == reason; });
}

Bars Read(const MadeBarcode& barcode) {
    return RulesOf(barcode.type->code).read(barcode.fontString);
}

/** Data that has a good chance with a type's encoder. */
std::string RandomDataOf(const BarcodeType& type, RandomData& random) {
    const std::size_t length = random.Number(0, 40);
    switch (type.symbology) {
        case Symbology::kCode128:
            if (type.code == TypeCode::kClassicCode128C) return random.Digits(5 * length);
            if (random.Number(0, 3) == 0) return random.Bytes(0, 134, length);
            if (random.Number(0, 3) == 0) return random.Text("~0129m(", length);
            return type.code == TypeCode::kClassicCode128A ? random.Bytes(0, 95, 3 * length)
                                                           : random.Bytes(32, 127, 3 * length);
        case Symbology::kCode39:
            if (type.trait == Trait::kFullAscii) return random.Bytes(0, 128, length);
            return random.Text("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%", length);
        case Symbology::kCodabar: return random.Text("0123456789-$:/.+", length);
        case Symbology::kEanUpc: {
            std::string digits = random.Digits(random.Number(1, 19));
            // Zeros give UPC-E a chance.
            if (random.Number(0, 1) == 0) std::fill(digits.begin(), digits.end() - 1, '0');
            return digits;
        }
        case Symbology::kMsi:
            return random.Number(0, 9) == 0 ? random.Text("12A ", length) : random.Digits(length);
        case Symbology::kPostnet: return random.Text("0123456789-", random.Number(5, 11));
        case Symbology::kIntelligentMail:
            return random.Text("01", 2) + random.Digits(18 + 9 * random.Number(0, 1));
        case Symbology::kText:
        case Symbology::kInterleaved2of5: break;
    }
    return random.Digits(length);
}

/** Every way in which the preferences decide what is carried. */
void SetPreferences(RandomData& random) {
    const auto choice = [&] { return static_cast<uint16>(random.Number(0, 2)); };
    preferences.code39CheckMode = choice();
    preferences.code39UseAsterisk = choice() != 0;
    preferences.i2of5CheckDigit = choice() != 0;
    preferences.msiFirstCheck = static_cast<int16>(choice());
    preferences.msiSecondCheck = static_cast<int16>(choice());
    preferences.codabarStart = static_cast<uint8>('A' + choice());
    preferences.codabarStop = static_cast<uint8>('B' + choice());
}

class BarsTest : public testing::TestWithParam<BarcodeType> {
  protected:
    ~BarsTest() override { preferences = saved; }

    MadeBarcode MakeRandom() {
        MadeBarcode barcode{.type = FindTypeByPrefix(GetParam().name), .data = {}};
        do {
            SetPreferences(random);
            barcode.data = RandomDataOf(GetParam(), random);
            barcode.isCheckWanted = random.Number(0, 1) == 0;
        } while (!Make(barcode, 2.0 + 0.5 * static_cast<double>(random.Number(0, 2))));
        return barcode;
    }

    TestHost host;
    RandomData random{9};

  private:
    LinewrightPrefsRecord saved = preferences;
};

TEST_P(BarsTest, SayWhatIsMeantOrThereIsAWarning) {
    std::size_t quiet = 0;
    for (std::size_t count = 0; count < kBarcodesOfType; ++count) {
        const MadeBarcode barcode = MakeRandom();
        const Meaning meaning = barcode.MeaningOfIt();
        if (!meaning.warnings.empty()) continue;
        ++quiet;
        const Bars bars = Read(barcode);
        ASSERT_EQ(bars.symbol, Symbol::kRead) << testing::PrintToString(barcode.data);
        if (GetParam().code == TypeCode::kIntelligentMail) continue;
        EXPECT_EQ(bars.text, meaning.carried) << testing::PrintToString(barcode.data);
        EXPECT_EQ(bars.addOn, meaning.addOn) << testing::PrintToString(barcode.data);
        EXPECT_EQ(bars.isGs1, meaning.isGs1) << testing::PrintToString(barcode.data);
        // What was typed is in the bars; other tests see to what is not written as it is typed.
        const bool isPlain = !GetParam().name.starts_with("_QVT_BARCODE_CODE128") &&
                             GetParam().trait != Trait::kFullAscii &&
                             GetParam().symbology != Symbology::kEanUpc &&
                             barcode.data.find_first_of(" -") == std::string::npos;
        if (isPlain) {
            EXPECT_NE(bars.text.find(barcode.data), std::string::npos)
                << testing::PrintToString(barcode.data) << " reads " << bars.text;
        }
    }
    EXPECT_GT(quiet, kBarcodesOfType / 20);
}

/** Data set against the bars of other data. */
TEST_P(BarsTest, OfOtherDataAreNoticed) {
    if (GetParam().code == TypeCode::kIntelligentMail) return;  // nobody can say
    std::size_t noticed = 0;
    for (std::size_t count = 0; count < kBarcodesOfType; ++count) {
        MadeBarcode barcode = MakeRandom();
        const MadeBarcode other = MakeRandom();
        barcode.fontString = other.fontString;
        const Meaning meaning = barcode.MeaningOfIt();
        if (!meaning.warnings.empty()) {
            ++noticed;
        } else {
            EXPECT_EQ(meaning.carried, other.MeaningOfIt().carried)
                << testing::PrintToString(barcode.data) << " and "
                << testing::PrintToString(other.data);
        }
    }
    EXPECT_GT(noticed, kBarcodesOfType / 2);
}

/** A reader takes any bytes, and a damaged symbol is not taken for whole. */
TEST_P(BarsTest, OfDamagedFontStringsAreNoticed) {
    for (std::size_t count = 0; count < kBarcodesOfType; ++count) {
        MadeBarcode barcode = MakeRandom();
        const Meaning whole = barcode.MeaningOfIt();
        if (barcode.fontString.empty()) continue;
        const std::size_t place = random.Number(0, barcode.fontString.size() - 1);
        const char damaged = random.Bytes(0, 255, 1).front();
        if (random.Number(0, 1) == 0) {
            barcode.fontString.resize(place);
        } else {
            barcode.fontString[place] = damaged;
        }
        const Bars bars = Read(barcode);
        const Meaning meaning = barcode.MeaningOfIt();
        if (meaning.warnings.empty()) {
            EXPECT_EQ(bars.symbol, Symbol::kRead);
        }
    }
}

/** Digits are fine with every type that follows the preferences. */
TEST_P(BarsTest, WithWhatThePreferencesAddAreMeant) {
    if (GetParam().check != CheckDigit::kByPreference && !GetParam().name.ends_with("CODABAR_")) {
        return;
    }
    for (std::size_t count = 0; count < kBarcodesOfType; ++count) {
        SetPreferences(random);
        MadeBarcode barcode{.type = FindTypeByPrefix(GetParam().name),
                            .data = random.Digits(random.Number(4, 12))};
        if (!Make(barcode)) continue;  // MSI's modulo 11 has no digit for some
        EXPECT_EQ(barcode.MeaningOfIt().warnings, std::vector<Warning>())
            << barcode.data << " and " << barcode.fontString;
    }
}

std::string NameOf(const testing::TestParamInfo<BarcodeType>& info) {
    std::string name(info.param.shortName);
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Types, BarsTest, testing::ValuesIn(kBarcodeTypes), NameOf);

TEST(Readers, TakeNothingThatIsNoSymbol) {
    constexpr std::string_view kNone[]{
        "",   "n",   "nn#n",      "nxxxn", "<12A>", "<AB>",
        "*A", "A12", "EBDACGCAG", "GIAH",  "\x88",  "(01*KL(",
    };
    for (const BarcodeType& type : kBarcodeTypes) {
        if (type.symbology == Symbology::kText) continue;
        for (const std::string_view fontString : kNone) {
            EXPECT_NE(RulesOf(type.code).read(fontString).symbol, Symbol::kRead)
                << type.shortName << ' ' << fontString;
        }
    }
}

/** 1234567 has the check digit 0 (1*3+2+3*3+4+5*3+6+7*3 = 60), and the add-on 06 the number sets B
 * and A. */
TEST(RetailReader, SeesToCheckDigitAndAddOnParity) {
    const auto read = [](std::string_view fontString) { return meaning::ReadRetail(fontString); };
    EXPECT_EQ(read("(1234*PQRK(").text, "12345670");
    EXPECT_EQ(read("(1234*PQRK(").symbol, Symbol::kRead);
    EXPECT_EQ(read("(1234*PQRL(").symbol, Symbol::kWrongCheck);
    EXPECT_EQ(read("(1234*PQRK(+z!.").addOn, "06");
    EXPECT_EQ(read("(1234*PQRK(+\"!.").symbol, Symbol::kNone);
}

/** Symbols that no reader takes, each of which has its warning. */
bool IsKnownToBeNone(const Meaning& meaning, const MadeBarcode& barcode) {
    for (const WarningReason reason :
         {WarningReason::kNoCode128Start, WarningReason::kCode128SumOverflow,
          WarningReason::kNoUpcEForm, WarningReason::kNoUpcENumberSystem,
          WarningReason::kOtherUpcEDigits}) {
        if (Has(meaning, reason)) return true;
    }
    // The classic types write what stands in the data or the preferences, as it is.
    const auto consistsOf = [](std::string_view text, std::string_view characters) {
        return text.find_first_not_of(characters) == std::string_view::npos;
    };
    const std::string ends{barcode.fontString.front(), barcode.fontString.back()};
    return Has(meaning, WarningReason::kNoSymbol) &&
           ((barcode.type->code == TypeCode::kClassicMsi &&
             !consistsOf(barcode.data, "0123456789")) ||
            (barcode.type->code == TypeCode::kClassicCodabar && !consistsOf(ends, "ABCD")));
}

TEST(VectorRows, AreRead) {
    const TestHost host;
    std::size_t count = 0;
    std::set<TypeCode> types;
    for (const auto& file : std::filesystem::directory_iterator(LINEWRIGHT_TESTS "/vectors")) {
        for (const MeaningRow& row : MeaningRows("vectors/" + file.path().filename().string())) {
            const std::string call = row.fields.at("call");
            const BarcodeType* const type = FindTypeByPrefix(call);
            if (type == nullptr || row.fields.value("status", -1) != 0) continue;
            if (!row.fields.contains("result")) continue;
            const MadeBarcode barcode{
                .type = type,
                .data = BytesOf(row.fields.value("data", nlohmann::json(""))),
                .isUtf8 = row.fields.value("utf8", false),
                .isCheckWanted = row.fields.value("check", 0) != 0,
                .fontString = BytesOf(row.fields["result"]),
            };
            ++count;
            types.insert(type->code);
            const Meaning meaning = barcode.MeaningOfIt();
            EXPECT_TRUE(Read(barcode).symbol == Symbol::kRead || IsKnownToBeNone(meaning, barcode))
                << testing::PrintToString(row);
        }
    }
    EXPECT_GT(count, 300U);
    EXPECT_EQ(types.size(), kBarcodeTypes.size());
}

}  // namespace

}  // namespace linewright
