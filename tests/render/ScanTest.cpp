#include <gtest/gtest.h>

#include <array>

#include "core/PreferencesRecord.h"
#include "scanners/Verification.h"
#include "tests/RandomData.h"
#include "tests/TestHost.h"
#include "tests/render/Drawn.h"

// Draws random valid data of every type that a scanner knows, and has both scanners read it.

namespace linewright {

namespace {

constexpr std::string_view kCodabarCharacters = "0123456789-$:/.+";
constexpr std::string_view kCode39Characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

/** What takes its turn from one symbol to the next. */
struct Turn {
    std::size_t number;

    double Ratio() const { return std::array{2.0, 2.5, 3.0}[number % 3]; }
    bool IsCheckWanted() const { return number / 4 % 2 != 0; }
    std::size_t Of(std::size_t count) const { return number / 2 % count; }
};

using MakeData = std::string (*)(RandomData& random, const Turn& turn);

struct ScanCase {
    std::string_view typeName;
    MakeData data;
};

std::string Trimmed(std::string text) {
    // Spaces at the ends would be trimmed away before they are encoded.
    if (text.front() == ' ') text.front() = '0';
    if (text.back() == ' ') text.back() = '0';
    return text;
}

template <std::size_t kMain>
std::string WithAddOn(RandomData& random, const Turn& turn) {
    return random.Digits(kMain) + random.Digits(std::array<std::size_t, 3>{0, 2, 5}[turn.Of(3)]);
}

/** Whether the 16 bits of a classic Code 128 symbol's sum are enough. */
bool FitsSum(const std::string& data) {
    int sum = 105;
    int position = 0;
    for (const char character : data) sum += ++position * ((character + 64) % 96);
    return sum <= 32767;
}

std::string Code128Data(RandomData& random, int first, int last) {
    std::string data;
    do data = Trimmed(random.Bytes(first, last, random.Number(1, 45)));
    while (!FitsSum(data));
    return data;
}

std::string Code128Digits(RandomData& random) {
    return random.Digits(random.Number(1, 50));
}

/** Runs of digits, letters and control characters, which make the encoder change its set. */
std::string MixedData(RandomData& random) {
    const std::size_t length = random.Number(1, 255);
    std::string data;
    while (data.size() < length) {
        const std::size_t run = random.Number(1, 9);
        switch (random.Number(0, 3)) {
            case 0: data += random.Digits(run); break;
            case 1: data += random.Bytes(1, 31, run); break;
            case 2: data += random.Text("ABCDEFGHIJKLMNOPQRSTUVWXYZ", run); break;
            default: data += random.Bytes(32, 125, run); break;
        }
    }
    data.resize(length);
    // What would be an escape or a GS1 element string has tests of its own.
    std::replace(data.begin(), data.end(), '(', '[');
    return Trimmed(data);
}

/** A number of a number system that UPC-E has, with at least five zeros in the right place. */
std::string UpcEData(RandomData& random, const Turn& turn) {
    const std::string seven = random.Text("01", 1) + random.Digits(6);
    return turn.Of(2) == 0 ? seven : seven + random.Digits(1);
}

/** Six digits that the classic rule prints as they are: no zeros and a last digit from 5 to 9. */
std::string ClassicUpcEData(RandomData& random, const Turn&) {
    return '0' + random.Text("123456789", 5) + random.Text("56789", 1);
}

// ZBar reads four digits of Interleaved 2 of 5 and more.
constexpr ScanCase kCases[]{
    {"_BARCODE_CODABAR_",
     [](RandomData& random, const Turn&) {
         return random.Text(kCodabarCharacters, random.Number(1, 250));
     }},
    {"_BARCODE_CODE128A_",
     [](RandomData& random, const Turn&) { return Code128Data(random, 0, 95); }},
    {"_BARCODE_CODE128B_",
     [](RandomData& random, const Turn&) { return Code128Data(random, 32, 127); }},
    {"_BARCODE_CODE128C_", [](RandomData& random, const Turn&) { return Code128Digits(random); }},
    {"_BARCODE_CODE39_",
     [](RandomData& random, const Turn&) {
         return Trimmed(random.Text(kCode39Characters, random.Number(1, 255)));
     }},
    {"_BARCODE_CODE39ASCII_",
     [](RandomData& random, const Turn&) {
         return Trimmed(random.Bytes(0, 127, random.Number(1, 127)));
     }},
    {"_BARCODE_EAN13_", WithAddOn<12>},
    {"_BARCODE_I2OF5_",
     [](RandomData& random, const Turn&) { return random.Digits(random.Number(3, 255)); }},
    {"_BARCODE_JAN13_", WithAddOn<12>},
    {"_BARCODE_UPCA_", WithAddOn<11>},
    {"_BARCODE_UPCE_", ClassicUpcEData},
    {"_QVT_BARCODE_CODABAR_",
     [](RandomData& random, const Turn&) {
         return random.Text(kCodabarCharacters, random.Number(4, 255));
     }},
    {"_QVT_BARCODE_CODE39_",
     [](RandomData& random, const Turn&) {
         return Trimmed(random.Text(kCode39Characters, random.Number(1, 255)));
     }},
    {"_QVT_BARCODE_CODE128_", [](RandomData& random, const Turn&) { return MixedData(random); }},
    {"_BARCODE_EAN8_",
     [](RandomData& random, const Turn&) { return random.Digits(random.Number(1, 8)); }},
    {"_QVT_BARCODE_EAN13_",
     [](RandomData& random, const Turn&) { return random.Digits(random.Number(1, 13)); }},
    {"_QVT_BARCODE_I2OF5_",
     [](RandomData& random, const Turn&) { return random.Digits(random.Number(3, 255)); }},
    {"_QVT_BARCODE_JAN13_",
     [](RandomData& random, const Turn&) { return random.Digits(random.Number(1, 13)); }},
    {"_QVT_BARCODE_UPCA_",
     [](RandomData& random, const Turn& turn) {
         return random.Digits(std::array<std::size_t, 4>{11, 12, 13, 16}[turn.Of(4)]);
     }},
    {"_QVT_BARCODE_UPCE_", UpcEData},
};

constexpr std::size_t kNarrowSymbols = LINEWRIGHT_SYMBOLS / 10;
constexpr double kMostReduction = 25;
/** So little that nothing changes, but the variable font is what draws. */
constexpr double kLeastReduction = 0.001;

/** Whether a symbol lies within what a scanner reads. What does not was found by trying:
 *  - ZXing-C++ wants six digits of Interleaved 2 of 5 and two of Codabar, ZBar takes up to 255
 * characters of it and of Codabar, loses digits of set C in Code 128 of more than 200 characters,
 * and has only number system 0 of UPC-E.
 *  - With narrower bars ZXing-C++ compares Code 39's bars and spaces, of which "$", "/", "+" and
 * "%" then have too different ones, and looks for an add-on no further than 10 modules. */
bool IsWithin(std::string_view scanner, std::string_view type, const Meaning& meaning,
              double reduction) {
    const Symbology symbology = meaning.task.symbology;
    const std::size_t length = meaning.carried.size();
    if (scanner == "ZXing-C++") {
        if (symbology == Symbology::kInterleaved2of5) return length >= 6;
        if (symbology == Symbology::kCodabar && length < 4) return false;
        if (reduction != kMostReduction) return true;
        if (symbology == Symbology::kCode39) {
            return meaning.carried.find_first_of("$/+%") == std::string::npos;
        }
        return type != "_BARCODE_UPCA_" || meaning.addOn.empty();
    }
    if (symbology == Symbology::kCode128) return length <= 200;
    if (type == "_QVT_BARCODE_UPCE_") return meaning.carried[1] == '0';
    return length <= 255;
}

/** What the classic types do. */
void SetPreferences(const Turn& turn) {
    preferences.code39CheckMode = turn.Of(2) == 0 ? 2 : 0;
    preferences.code39UseAsterisk = turn.Of(2) == 0;
    preferences.i2of5CheckDigit = turn.Of(3) != 0;
    preferences.codabarStart = static_cast<uint8>("ABCD"[turn.Of(4)]);
    preferences.codabarStop = static_cast<uint8>("DCBA"[turn.Of(3)]);
}

/** Warnings of other things than what random digits have: a check digit that is replaced, and zeros
 *  in front of short ones. */
std::ptrdiff_t Others(const Meaning& meaning) {
    return std::count_if(meaning.warnings.begin(), meaning.warnings.end(),
                         [](const Warning& warning) {
                             return warning.reason != WarningReason::kCheckDigitReplaced &&
                                    warning.reason != WarningReason::kFilledUp;
                         });
}

class ScanTest : public testing::TestWithParam<ScanCase> {
  protected:
    ~ScanTest() override { preferences = saved; }

    /** Every scanner reads exactly what the data means. */
    void ExpectScans(const std::string& data, const Turn& turn, int pixelsPerModule,
                     double reduction = 0) {
        const std::string_view type = GetParam().typeName;
        SetPreferences(turn);
        const std::string fontString = Encoded(type, data, turn.IsCheckWanted(), turn.Ratio());
        const Meaning meaning = MeaningOf({.type = *FindTypeByPrefix(type),
                                           .data = data,
                                           .isUtf8 = false,
                                           .isCheckWanted = turn.IsCheckWanted(),
                                           .fontString = fontString});
        EXPECT_EQ(Others(meaning), 0) << testing::PrintToString(data);
        const BarcodeDrawing drawing = Drawn(type, fontString, {.barWidthReduction = reduction});
        const Verification found = Verify(drawing, meaning, pixelsPerModule);
        ASSERT_EQ(found.readings.size(), 2U);
        for (const Reading& reading : found.readings) {
            if (!IsWithin(reading.scanner, type, meaning, reduction)) continue;
            ++readings;
            EXPECT_TRUE(reading.isMeant)
                << reading.scanner << " at " << pixelsPerModule << " pixels and ratio "
                << turn.Ratio() << " of " << testing::PrintToString(data) << " (" << fontString
                << "), meant is " << testing::PrintToString(meaning.carried) << " +"
                << meaning.addOn << ", read " << testing::PrintToString(reading.data) << " +"
                << reading.addOn << ' ' << reading.symbology;
        }
    }

    TestHost host;
    RandomData random{20};
    /** How many readings counted. */
    std::size_t readings = 0;

  private:
    LinewrightPrefsRecord saved = preferences;
};

TEST_P(ScanTest, BothScannersReadWhatIsMeant) {
    for (std::size_t number = 0; number < LINEWRIGHT_SYMBOLS; ++number) {
        const Turn turn{number};
        const int pixels = 1 + static_cast<int>(number % 4);
        const bool isOddHalf = turn.Ratio() == 2.5 && pixels % 2 != 0;
        ExpectScans(GetParam().data(random, turn), turn, isOddHalf ? pixels + 1 : pixels);
    }
    EXPECT_GE(readings, LINEWRIGHT_SYMBOLS * 5 / 4U);
}

/** Both ends of the axis; the printer's ink makes up for the narrower bars. */
TEST_P(ScanTest, NarrowerBarsAreReadToo) {
    for (std::size_t number = 0; number < kNarrowSymbols; ++number) {
        const Turn turn{number};
        std::string data = GetParam().data(random, turn);
        // Digits alone, where other characters are more than ZXing-C++ can do.
        const bool isCode39 = GetParam().typeName.find("CODE39") != std::string_view::npos;
        if (isCode39 && turn.IsCheckWanted()) data = random.Digits(data.size());
        ExpectScans(data, turn, 8, number % 2 == 0 ? kMostReduction : kLeastReduction);
    }
    EXPECT_GE(readings, kNarrowSymbols * 5 / 4U);
}

std::string NameOf(const testing::TestParamInfo<ScanCase>& info) {
    std::string name(info.param.typeName);
    std::erase(name, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Types, ScanTest, testing::ValuesIn(kCases), NameOf);

}  // namespace

}  // namespace linewright
