#include "meaning/TypeRules.h"

#include <algorithm>
#include <iterator>

#include "meaning/Code128Text.h"

namespace linewright::meaning {

namespace {

std::string FromNulOn(std::string_view data) {
    return std::string(data.substr(BeforeNul(data).size()));
}

std::string NonDigits(std::string_view data) {
    std::string dropped;
    std::remove_copy_if(data.begin(), data.end(), std::back_inserter(dropped),
                        [](char character) { return character >= '0' && character <= '9'; });
    return dropped;
}

std::string NonDigitsAndFromNulOn(std::string_view data) {
    return NonDigits(BeforeNul(data)) + FromNulOn(data);
}

std::string Bytes128(std::string_view data) {
    return std::string(static_cast<std::size_t>(std::count(data.begin(), data.end(), '\x80')),
                       '\x80');
}

/** DEL, written as it is or as an escape, has no place in Code 128 automatic. */
std::string DelAndFromNulOn(std::string_view data) {
    const std::string_view seen = BeforeNul(data);
    std::string dropped;
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const std::size_t escape = EscapeLength(seen.substr(i));
        if (seen[i] == '\x7F' || (escape != 0 && seen.substr(i, escape) == "~127")) {
            dropped += '\x7F';
        }
        if (escape != 0) i += escape - 1;
    }
    return dropped + FromNulOn(data);
}

/** Classic UPC-E prints six digits of a long number: zeros up to four fewer than there are, then
 *  the others in order. With fewer than four zeros the last ones find no room. */
std::string DigitsBeyondUpcE(std::string_view data) {
    if (data.size() != 11) return "";
    std::string nonZero;
    std::remove_copy(data.begin() + 1, data.end(), std::back_inserter(nonZero), '0');
    return nonZero.size() > 6 ? nonZero.substr(6) : "";
}

}  // namespace

TypeRules RulesOf(TypeCode code) {
    switch (code) {
        case TypeCode::kClassicPostnet:
            return {ReadClassicPostnet, ClassicPostnetIntent, NonDigits};
        case TypeCode::kIntelligentMail: return {ReadIntelligentMail, IntelligentMailIntent};
        case TypeCode::kClassicCodabar: return {ReadClassicCodabar, ClassicCodabarIntent};
        case TypeCode::kClassicCode128A: return {ReadClassicCode128, ClassicCode128Intent};
        case TypeCode::kClassicCode128B: return {ReadClassicCode128, ClassicCode128Intent};
        case TypeCode::kClassicCode128C: return {ReadClassicCode128, ClassicCode128CIntent};
        case TypeCode::kClassicCode39: return {ReadClassicCode39, ClassicCode39Intent};
        case TypeCode::kClassicCode39FullAscii:
            return {ReadClassicCode39, ClassicCode39FullAsciiIntent, Bytes128};
        case TypeCode::kEan8: return {ReadRetail, Ean8Intent, nullptr, 7};
        case TypeCode::kClassicEan13: return {ReadClassicRetail, Ean13Intent};
        case TypeCode::kClassicInterleaved2of5:
            return {ReadClassicInterleaved2of5, ClassicInterleaved2of5Intent};
        case TypeCode::kClassicInterleaved2of5Text:
            return {ReadDigits, ClassicInterleaved2of5TextIntent};
        case TypeCode::kClassicJan13: return {ReadClassicRetail, Ean13Intent};
        case TypeCode::kClassicMsi: return {ReadClassicMsi, ClassicMsiIntent};
        case TypeCode::kClassicUpcA: return {ReadClassicRetail, UpcAIntent};
        case TypeCode::kClassicUpcE: return {ReadClassicRetail, UpcEIntent, DigitsBeyondUpcE};
        case TypeCode::kCodabar: return {ReadCodabar, CodabarIntent, FromNulOn};
        case TypeCode::kCode39: return {ReadCode39, Code39Intent, FromNulOn};
        case TypeCode::kCode128: return {ReadCode128, Code128Intent, DelAndFromNulOn};
        case TypeCode::kEan13: return {ReadRetail, Ean13Intent, nullptr, 12};
        case TypeCode::kInterleaved2of5: return {ReadInterleaved2of5, Interleaved2of5Intent};
        case TypeCode::kInterleaved2of5Text: return {ReadDigits, Interleaved2of5Intent};
        case TypeCode::kJan13: return {ReadRetail, Ean13Intent, nullptr, 12};
        case TypeCode::kMsi: return {ReadMsi, MsiIntent};
        case TypeCode::kUpcA: return {ReadRetail, UpcAIntent};
        case TypeCode::kUpcE: return {ReadRetail, UpcEIntent};
        case TypeCode::kPostnet: return {ReadPostnet, PostnetIntent, NonDigitsAndFromNulOn};
    }
    return {ReadDigits, IntelligentMailIntent};
}

}  // namespace linewright::meaning
