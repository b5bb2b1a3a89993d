#include "meaning/Meaning.h"

#include <algorithm>
#include <iterator>

#include "meaning/Code128Text.h"
#include "meaning/Code39Text.h"
#include "meaning/Gs1Elements.h"
#include "meaning/PlugInConversion.h"
#include "meaning/TypeRules.h"
#include "standards/CheckDigits.h"
#include "standards/UpcEZeroSuppression.h"
#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

using namespace meaning;

std::string Hexadecimal(unsigned char byte) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return {kDigits[byte >> 4], kDigits[byte & 0xF]};
}

/** The bytes that the encoder gets, and warnings about what becomes of data on its way there. */
std::string Received(const EncodedBarcode& barcode, std::vector<Warning>& warnings) {
    std::string bytes(barcode.data);
    if (barcode.isUtf8) {
        if (const auto invalid = FirstInvalidUtf8(barcode.data)) {
            warnings.push_back({WarningReason::kNotUtf8, {std::to_string(*invalid + 1)}});
        }
        ConvertedData converted = ConvertLikePlugIn(barcode.data);
        bytes = std::move(converted.bytes);
        const std::size_t count = converted.dropped.size();
        std::string shown;
        for (std::size_t i = 0; i < std::min(count, kMostShown); ++i) {
            AppendUtf8(shown, converted.dropped[i]);
        }
        if (count > 0) {
            warnings.push_back({WarningReason::kAboveLatin1, {std::to_string(count), shown}});
        }
    }
    bytes = TrimLikePlugIn(bytes);
    if (bytes.empty()) warnings.push_back({WarningReason::kEmptyData});
    return bytes;
}

/** One barcode's data and bars, set against each other. */
class Comparison {
  public:
    Comparison(const EncodedBarcode& encoded, Meaning& result)
        : barcode(encoded), type(encoded.type), meaning(result) {}

    void Run() {
        data = Received(barcode, meaning.warnings);
        const TypeRules rules = RulesOf(type.code);
        if (type.symbology == Symbology::kCode128) WarnOfByteAbove127();
        if (rules.dropped) WarnOfDropped(rules.dropped(data));
        intent = rules.intent({data, barcode.isCheckWanted});
        bars = rules.read(barcode.fontString);
        const bool isMeant = Agrees(intent.mayCarry);
        if (!intent.mayCarry.empty()) {
            meaning.carried = isMeant ? bars.text : intent.mayCarry.front();
        }
        SetMeaning();
        WarnOfFill(rules.filledTo);
        WarnOfCheckDigit();
        if (!isMeant) WarnOfDifference();
        if (meaning.isGs1) WarnOfElements();
        WarnOfExpectation();
    }

  private:
    void Warn(WarningReason reason, std::vector<std::string> parameters = {}) {
        meaning.warnings.push_back({reason, std::move(parameters)});
    }

    /** Whether the bars carry one of the texts, or anything where there are none. */
    bool Agrees(const std::vector<std::string>& texts) const {
        if (bars.symbol != Symbol::kRead) return false;
        if (intent.mayCarry.empty()) return true;
        return bars.addOn == intent.addOn && bars.isGs1 == intent.isGs1 &&
               std::find(texts.begin(), texts.end(), bars.text) != texts.end();
    }

    void SetMeaning() {
        meaning.addOn = intent.addOn;
        meaning.isGs1 = intent.isGs1;
        meaning.translated = meaning.carried;
        meaning.task.symbology = type.symbology;
        meaning.task.hasAddOn = !intent.addOn.empty();
        meaning.task.isFullAscii = type.trait == Trait::kFullAscii;
        if (meaning.task.isFullAscii) SetFullAscii();
        if (bars.symbol != Symbol::kRead) return;
        meaning.barsSay = Readable(Utf8FromLatin1(bars.text));
        if (!bars.addOn.empty()) meaning.barsSay += " +" + bars.addOn;
    }

    void SetFullAscii() {
        const std::string& plain = intent.mayCarry.front();
        meaning.task.hasModulo43 = meaning.carried == plain + Modulo43(plain);
        // A reader knows nothing of modulo 10: it translates the digit with the rest.
        if (meaning.task.hasModulo43 || meaning.carried == plain) meaning.translated = data;
    }

    void WarnOfByteAbove127() {
        const std::string_view seen = type.code == TypeCode::kCode128 ? BeforeNul(data) : data;
        const auto found = std::find_if(seen.begin(), seen.end(), [](char character) {
            return static_cast<unsigned char>(character) > 127;
        });
        hasByteAbove127 = found != seen.end();
        if (!hasByteAbove127) return;
        Warn(WarningReason::kNoCode128Character,
             {Hexadecimal(static_cast<unsigned char>(*found)), Utf8FromLatin1({&*found, 1})});
    }

    void WarnOfDropped(const std::string& dropped) {
        if (dropped.empty()) return;
        Warn(WarningReason::kDroppedByEncoder,
             {std::to_string(dropped.size()), Utf8FromLatin1(dropped.substr(0, kMostShown))});
    }

    void WarnOfFill(std::size_t length) {
        if (data.empty() || data.size() >= length) return;
        Warn(WarningReason::kFilledUp, {std::to_string(length - data.size()), meaning.carried});
    }

    void WarnOfCheckDigit() {
        if (!type.checkSuppliedAt.Has(data.size()) || meaning.carried.empty()) return;
        if (data.back() == meaning.carried.back()) return;
        Warn(WarningReason::kCheckDigitReplaced, {{data.back()}, {meaning.carried.back()}});
    }

    void WarnOfDifference() {
        if (bars.symbol == Symbol::kRead && Agrees(intent.mayCarryOfRest)) return;
        if (type.symbology == Symbology::kCode128 && WarnOfCode128()) return;
        if (type.symbology == Symbology::kEanUpc && WarnOfEanUpc()) return;
        if (bars.symbol != Symbol::kRead) {
            Warn(WarningReason::kNoSymbol);
        } else if (type.symbology == Symbology::kText) {
            Warn(WarningReason::kDigitsSay, {meaning.barsSay});
        } else {
            Warn(WarningReason::kBarsSay, {meaning.barsSay});
        }
    }

    bool WarnOfCode128() {
        if (bars.symbol == Symbol::kNoStart) {
            Warn(WarningReason::kNoCode128Start);
        } else if (bars.symbol == Symbol::kWrongCheck) {
            Warn(WarningReason::kCode128SumOverflow);
        } else if (type.code == TypeCode::kCode128 &&
                   HasFunctionBehindControl(Code128Characters(data))) {
            Warn(WarningReason::kFunctionOfSetB);
        } else {
            return hasByteAbove127;
        }
        return true;
    }

    bool WarnOfEanUpc() {
        if (type.addOnCutAt.Has(data.size())) {
            Warn(WarningReason::kAddOnCut, {bars.addOn, intent.addOn});
        } else if (type.code == TypeCode::kClassicUpcE && !bars.upcEDigits.empty()) {
            Warn(WarningReason::kOtherUpcEDigits, {bars.upcEDigits});
        } else if (type.code == TypeCode::kUpcE && meaning.carried.size() == 13) {
            const char numberSystem = meaning.carried[1];
            if (!SuppressUpcE(std::string_view(meaning.carried).substr(2, 10))) {
                Warn(WarningReason::kNoUpcEForm);
            } else if (numberSystem > '1') {
                Warn(WarningReason::kNoUpcENumberSystem, {{numberSystem}});
            } else {
                return false;
            }
        } else {
            return false;
        }
        return true;
    }

    /** In brackets a value is what stands behind them, whatever a reader would make of it. */
    void WarnOfElements() {
        const auto separated = SeparatedElements(BeforeNul(data));
        std::vector<Warning> found = ElementWarnings(separated ? SplitSeparatedElements(*separated)
                                                               : SplitElements(meaning.carried));
        std::move(found.begin(), found.end(), std::back_inserter(meaning.warnings));
    }

    void WarnOfExpectation() {
        constexpr std::size_t kItf14 = 14;
        if (barcode.expectation == Expectation::kIdentifiers && !meaning.isGs1) {
            Warn(WarningReason::kNoIdentifiers);
        }
        if (barcode.expectation != Expectation::kFourteenDigits) return;
        const std::string_view digits = meaning.carried;
        if (digits.size() != kItf14) {
            Warn(WarningReason::kNotFourteenDigits, {std::to_string(digits.size())});
            return;
        }
        const char computed = Modulo10CheckDigit(digits.substr(0, kItf14 - 1));
        if (digits.back() != computed) {
            Warn(WarningReason::kWrongItf14CheckDigit, {{digits.back()}, {computed}});
        }
    }

    const EncodedBarcode& barcode;
    const BarcodeType& type;
    Meaning& meaning;
    std::string data{};
    Intent intent{};
    Bars bars{};
    bool hasByteAbove127 = false;
};

}  // namespace

Meaning MeaningOf(const EncodedBarcode& barcode) {
    Meaning meaning;
    Comparison(barcode, meaning).Run();
    return meaning;
}

}  // namespace linewright
