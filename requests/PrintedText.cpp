#include "requests/PrintedText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

constexpr char kSeparator = 0x1D;

/** GS1 application identifiers by their first two digits. */
struct Identifiers {
    std::string_view first;
    std::string_view last;
    std::size_t length;
    /** Of identifier and value together, where it is predefined; 0 where FNC1 ends the value. */
    std::size_t elementLength = 0;
};

/** GS1 General Specifications, sections 3.2 and 7.8.5. */
constexpr std::array kIdentifiers{
    Identifiers{"00", "00", 2, 20}, Identifiers{"01", "03", 2, 16}, Identifiers{"04", "04", 2, 18},
    Identifiers{"10", "10", 2},     Identifiers{"11", "19", 2, 8},  Identifiers{"20", "20", 2, 4},
    Identifiers{"21", "22", 2},     Identifiers{"23", "29", 3},     Identifiers{"30", "30", 2},
    Identifiers{"31", "36", 4, 10}, Identifiers{"37", "37", 2},     Identifiers{"39", "39", 4},
    Identifiers{"40", "40", 3},     Identifiers{"41", "41", 3, 16}, Identifiers{"42", "42", 3},
    Identifiers{"43", "43", 4},     Identifiers{"70", "70", 4},     Identifiers{"71", "71", 3},
    Identifiers{"72", "72", 4},     Identifiers{"80", "82", 4},     Identifiers{"90", "99", 2},
};

/** GS1 elements with brackets; "" for what is no list of elements. */
std::string BracketedElements(std::string_view data) {
    std::string text;
    while (!data.empty()) {
        const std::string_view first = data.substr(0, 2);
        const auto row = std::find_if(kIdentifiers.begin(), kIdentifiers.end(),
                                      [first](const Identifiers& known) {
                                          return first >= known.first && first <= known.last;
                                      });
        if (row == kIdentifiers.end() || data.size() < row->length) return "";
        std::size_t end = std::min(data.find(kSeparator), data.size());
        if (row->elementLength != 0) end = std::min(end, row->elementLength);
        if (end < row->length) return "";
        text += '(' + std::string(data.substr(0, row->length)) + ')';
        text += data.substr(row->length, end - row->length);
        data.remove_prefix(end);
        if (data.starts_with(kSeparator)) data.remove_prefix(1);
    }
    return text;
}

/** USPS-B-3200: barcode identifier, service type, mailer (9 digits where it begins with 9) with its
 *  serial number, routing code. */
std::string IntelligentMailGroups(const std::string& data) {
    std::string digits;
    std::copy_if(data.begin(), data.end(), std::back_inserter(digits),
                 [](char digit) { return digit >= '0' && digit <= '9'; });
    constexpr std::size_t kMailer = 5;
    const bool isLongMailer = digits.size() > kMailer && digits[kMailer] == '9';
    std::string text;
    std::size_t place = 0;
    for (const std::size_t length : std::initializer_list<std::size_t>{
             2, 3, isLongMailer ? 9U : 6U, isLongMailer ? 6U : 9U, 11}) {
        if (place >= digits.size()) break;
        if (!text.empty()) text += ' ';
        text += digits.substr(place, length);
        place += length;
    }
    return text;
}

}  // namespace

std::string PrintedText(const BarcodeOutcome& outcome, const BarcodeWish& wish) {
    const Meaning& meaning = outcome.meaning;
    if (outcome.type->symbology == Symbology::kIntelligentMail) {
        return IntelligentMailGroups(wish.data);
    }
    if (meaning.isGs1) {
        const std::string elements = BracketedElements(meaning.carried);
        if (!elements.empty()) return Readable(Utf8FromLatin1(elements));
    }
    if (meaning.task.isFullAscii && !meaning.translated.empty()) {
        return Readable(Utf8FromLatin1(meaning.translated));
    }
    if (!meaning.barsSay.empty()) return meaning.barsSay;
    return Readable(wish.isUtf8 ? wish.data : Utf8FromLatin1(wish.data));
}

}  // namespace linewright
