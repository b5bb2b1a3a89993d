#include "bench/Cases.h"

#include <zint.h>

#include <array>
#include <random>

#include "classic/Code39.h"
#include "current/Codabar.h"
#include "current/Code128Auto.h"
#include "current/Code128PreParse.h"
#include "current/Code39.h"
#include "current/Ean13.h"
#include "current/Ean8.h"
#include "current/Interleaved2of5.h"
#include "current/Msi.h"
#include "current/Postnet.h"
#include "current/UpcA.h"
#include "current/UpcE.h"
#include "imb/ImbBarMap.h"
#include "imb/ImbEncode.h"
#include "standards/UpcEZeroSuppression.h"
#include "tests/current/RandomText.h"

namespace linewright::bench {

namespace {

using Random = std::mt19937;
using Rows = std::vector<std::string>;

constexpr std::string_view kDigitCharacters = "0123456789";

template <class MakeRow>
Rows MakeRows(MakeRow makeRow) {
    Random random(1100);
    Rows rows;
    while (rows.size() < kRowCount) rows.push_back(makeRow(random));
    return rows;
}

Rows RandomRows(std::string_view alphabet, std::size_t length) {
    return MakeRows([=](Random& random) { return RandomText(random, alphabet, length, length); });
}

/** Article numbers as they are printed: letters, and runs of digits of all lengths. */
Rows MixedRows() {
    return MakeRows([](Random& random) {
        const std::string letters = RandomText(random, "ABCDEFGHKLMNPRSTabcd-./", 2, 6);
        return letters + RandomText(random, kDigitCharacters, 3, 10) + "-" +
               RandomText(random, kDigitCharacters, 1, 3);
    });
}

/** Number system and six digits that no other six stand for. */
Rows UpcERows() {
    return MakeRows([](Random& random) {
        for (;;) {
            const std::string six = RandomText(random, kDigitCharacters, 6, 6);
            if (IsSuppressedUpcE(six)) return RandomText(random, "01", 1, 1) + six;
        }
    });
}

Rows ImbRows() {
    return MakeRows([](Random& random) {
        const std::string tail = RandomText(random, kDigitCharacters, 29, 29);
        return RandomText(random, kDigitCharacters, 1, 1) + RandomText(random, "01234", 1, 1) +
               tail;
    });
}

std::string Same(const std::string& data) {
    return data;
}
std::string BetweenStartAndStop(const std::string& data) {
    return "A" + data + "B";
}
std::string WithAddOn(const std::string& data) {
    return data.substr(0, kUpcALength) + "+" + data.substr(kUpcALength);
}
std::string WithRouting(const std::string& data) {
    return data.substr(0, kImbTrackingLength) + "-" + data.substr(kImbTrackingLength);
}

int BuildImb(const std::string& data, TextArea& symbol) {
    std::array<char, kImbBarCount + 1> bars;
    const std::string_view digits = data;
    const int result = ImbEncode(digits.substr(0, kImbTrackingLength),
                                 digits.substr(kImbTrackingLength), bars.data());
    symbol.Append({bars.data(), kImbBarCount});
    return result;
}

std::vector<Case> MakeCases() {
    return {
        {"Code 128", "_QVT_BARCODE_CODE128_",
         [](const std::string& data, TextArea& symbol) -> int {
             return BuildCode128Auto(data, HasEscapes(data), symbol);
         },
         kCode128Bars, BARCODE_CODE128, Same, MixedRows()},
        {"Code 39", "_QVT_BARCODE_CODE39_",
         [](const std::string& data, TextArea& symbol) -> int {
             return BuildCode39Current(data, kRatio, false, symbol);
         },
         kTwoWidthBars, BARCODE_CODE39, Same,
         RandomRows("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-.$/+%", 10)},
        {"Code 39 full ASCII", "_BARCODE_CODE39ASCII_",
         [](const std::string& data, TextArea& symbol) {
             constexpr ClassicCode39Options kOptions{
                 .fullAscii = true, .checkMode = 2, .useAsterisk = true};
             return static_cast<int>(BuildCode39Classic(data, kOptions, symbol).size());
         },
         kClassicCode39Bars, BARCODE_EXCODE39, Same,
         RandomRows("0123456789ABCDEFGHabcdefgh-.!#", 10), false, 1},
        {"Codabar", "_QVT_BARCODE_CODABAR_",
         [](const std::string& data, TextArea& symbol) -> int {
             return BuildCodabarCurrent(data, kRatio, "A", "B", symbol);
         },
         kTwoWidthBars, BARCODE_CODABAR, BetweenStartAndStop, RandomRows("0123456789-$:/.+", 10)},
        {"Interleaved 2 of 5", "_QVT_BARCODE_I2OF5_",
         [](const std::string& data, TextArea& symbol) -> int {
             return BuildInterleaved2of5Current(data, kRatio, false, symbol);
         },
         kTwoWidthBars, BARCODE_C25INTER, Same, RandomRows(kDigitCharacters, 12)},
        {"MSI", "_QVT_BARCODE_MSI_",
         [](const std::string& data, TextArea& symbol) -> int {
             return BuildMsiCurrent(data, kRatio, false, symbol);
         },
         kTwoWidthBars, BARCODE_MSI_PLESSEY, Same, RandomRows(kDigitCharacters, 10)},
        {"EAN-13", "_QVT_BARCODE_EAN13_",
         [](const std::string& data, TextArea& symbol) -> int { return BuildEan13(data, symbol); },
         kRetailBars, BARCODE_EANX, Same, RandomRows(kDigitCharacters, 12)},
        {"EAN-8", "_BARCODE_EAN8_",
         [](const std::string& data, TextArea& symbol) -> int { return BuildEan8(data, symbol); },
         kRetailBars, BARCODE_EANX, Same, RandomRows(kDigitCharacters, 7)},
        {"UPC-A", "_QVT_BARCODE_UPCA_",
         [](const std::string& data, TextArea& symbol) -> int { return BuildUpcA(data, symbol); },
         kRetailBars, BARCODE_UPCA, Same, RandomRows(kDigitCharacters, 11)},
        {"UPC-A with add-on", "_QVT_BARCODE_UPCA_",
         [](const std::string& data, TextArea& symbol) -> int { return BuildUpcA(data, symbol); },
         kRetailBars, BARCODE_UPCA, WithAddOn, RandomRows(kDigitCharacters, 16)},
        {"UPC-E", "_QVT_BARCODE_UPCE_",
         [](const std::string& data, TextArea& symbol) -> int { return BuildUpcE(data, symbol); },
         kRetailBars, BARCODE_UPCE, Same, UpcERows()},
        {"Postnet", "_QVT_BARCODE_POSTNET_",
         [](const std::string& data, TextArea& symbol) -> int {
             return BuildPostnetCurrent(data, true, symbol);
         },
         kPostnetBars, BARCODE_POSTNET, Same, RandomRows(kDigitCharacters, 9), true},
        {"Intelligent Mail", "_BARCODE_USPS_IM_", BuildImb, kIntelligentMailBars,
         BARCODE_USPS_IMAIL, WithRouting, ImbRows()},
    };
}

}  // namespace

const std::vector<Case>& Cases() {
    static const std::vector<Case> cases = MakeCases();
    return cases;
}

}  // namespace linewright::bench
