#include "current/Code128PreParse.h"

#include <iterator>

#include "core/CharClasses.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr char kFnc1 = static_cast<char>(kFnc1Byte);

/** The value of the `count` digits that a text begins with, -1 if it does not begin with digits. */
int LeadingNumber(std::string_view text, std::size_t count) {
    if (text.size() < count || !AreDigits(text.substr(0, count))) return -1;
    int number = 0;
    for (const char digit : text.substr(0, count)) number = 10 * number + (digit - '0');
    return number;
}

/** What a text begins with: "~" and three digits, or "~m" and two. -1 for neither. */
int CharacterEscape(std::string_view text) {
    return text.starts_with('~') ? LeadingNumber(text.substr(1), 3) : -1;
}
int CheckDigitEscape(std::string_view text) {
    return text.starts_with("~m") ? LeadingNumber(text.substr(2), 2) : -1;
}

/** The digits of the application identifier in parentheses that a text begins with, or nothing. */
std::string_view LeadingIdentifier(std::string_view text) {
    if (!text.starts_with('(')) return {};
    const std::size_t end = text.find(')');
    if (end == std::string_view::npos || end < 3 || end > 5) return {};
    const std::string_view identifier = text.substr(1, end - 1);
    return AreDigits(identifier) ? identifier : std::string_view();
}

bool IsElementString(std::string_view data) {
    if (!data.starts_with('(')) return false;
    for (std::size_t place = 0; place < data.size(); ++place)
        if (data[place] == '(' && LeadingIdentifier(data.substr(place)).empty()) return false;
    return true;
}

/** GS1 General Specifications, 7.8.5: element strings of predefined length by the first two digits
 *  of their identifier. */
bool HasPredefinedLength(std::string_view identifier) {
    const int first = LeadingNumber(identifier, 2);
    return (first >= 0 && first <= 4) || (first >= 11 && first <= 20) ||
           (first >= 31 && first <= 36) || first == 41;
}

/** The check digit of the digits among the last `count` characters that are no marker bytes. */
char CheckDigitOf(std::string_view text, int count) {
    constexpr std::size_t kMaxCount = 99;
    char digits[kMaxCount];
    char* first = std::end(digits);
    for (auto c = text.rbegin(); c != text.rend() && count > 0; ++c) {
        if (IsMarkerByte(static_cast<unsigned char>(*c))) continue;
        --count;
        if (IsDigit(*c)) *--first = *c;
    }
    return Modulo10CheckDigit({first, static_cast<std::size_t>(std::end(digits) - first)});
}

/** Replaces the escape that `rest` begins with, or takes one character over. Returns how many
 *  characters that used up. */
std::size_t AppendNext(std::string_view rest, TextArea& parsed) {
    const int byte = CharacterEscape(rest);
    if (byte >= 0 && byte <= 255) {
        parsed.Append(static_cast<char>(byte));
        return 4;
    }
    const int count = CheckDigitEscape(rest);
    if (count >= 0) {
        parsed.Append(CheckDigitOf(parsed.View(), count));
        return 4;
    }
    parsed.Append(rest[0]);
    return 1;
}

}  // namespace

bool HasEscapes(std::string_view data) {
    if (data.starts_with('(')) return true;
    for (std::size_t place = data.find('~'); place < data.size();
         place = data.find('~', place + 1)) {
        const std::string_view rest = data.substr(place);
        if (CharacterEscape(rest) >= 0 || CheckDigitEscape(rest) >= 0) return true;
    }
    return false;
}

void Code128PreParse(std::string_view data, TextArea& parsed) {
    const bool isElementString = IsElementString(data);
    if (isElementString) parsed.Append(kFnc1);
    bool needsSeparator = false;
    for (std::size_t place = 0; place < data.size();) {
        const std::string_view rest = data.substr(place);
        if (!isElementString || rest[0] != '(') {
            place += AppendNext(rest, parsed);
            continue;
        }
        const std::string_view identifier = LeadingIdentifier(rest);
        if (needsSeparator) parsed.Append(kFnc1);
        parsed.Append(identifier);
        needsSeparator = !HasPredefinedLength(identifier);
        place += identifier.size() + 2;
    }
}

}  // namespace linewright
