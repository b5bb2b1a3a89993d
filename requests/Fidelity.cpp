#include "requests/Fidelity.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "requests/PrintedText.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

/** How many check digits or characters a type can put behind what was typed. */
std::size_t MostCheckDigits(const BarcodeType& type, const BarcodeWish& wish) {
    switch (type.check) {
        case CheckDigit::kNone: return 0;
        case CheckDigit::kAlways: return 1;
        case CheckDigit::kOnRequest: return wish.checkCharacter != 0 ? 1 : 0;
        case CheckDigit::kByPreference: return 2;
    }
    return 0;
}

/** What the bars say, without the letters that Codabar starts and stops with. */
std::string Said(const BarcodeOutcome& outcome) {
    const std::string& text = outcome.meaning.translated;
    const bool isFramed = outcome.type->symbology == Symbology::kCodabar && text.size() >= 2;
    return Utf8FromLatin1(isFramed ? text.substr(1, text.size() - 2) : text);
}

}  // namespace

Fidelity FidelityOf(const BarcodeOutcome& outcome, const BarcodeWish& wish) {
    const BarcodeType& type = *outcome.type;
    if (type.symbology == Symbology::kText) return Fidelity::kUntold;
    if (!outcome.Warnings().empty()) return Fidelity::kChanged;
    if (type.symbology == Symbology::kIntelligentMail) return Fidelity::kUntold;
    // What is filled up, replaced or cut of a retail number is warned of.
    if (type.symbology == Symbology::kEanUpc) return Fidelity::kExact;
    if (outcome.meaning.isGs1 && PrintedText(outcome, wish) == wish.data) return Fidelity::kExact;
    const std::string said = Said(outcome);
    const bool isExact = said.starts_with(wish.data) &&
                         said.size() - wish.data.size() <= MostCheckDigits(type, wish);
    return isExact ? Fidelity::kExact : Fidelity::kChanged;
}

}  // namespace linewright
