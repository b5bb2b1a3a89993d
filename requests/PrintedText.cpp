#include "requests/PrintedText.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <string_view>

#include "meaning/Gs1Elements.h"
#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

/** GS1 elements with brackets; "" for what is no list of elements. */
std::string BracketedElements(std::string_view data) {
    const Gs1Elements split = SplitElements(data);
    if (!split.rest.empty()) return "";
    std::string text;
    for (const auto& [identifier, value] : split.elements) {
        text.append("(").append(identifier).append(")").append(value);
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
