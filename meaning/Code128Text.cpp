#include "meaning/Code128Text.h"

#include <algorithm>
#include <optional>

#include "meaning/Gs1Identifiers.h"
#include "standards/CheckDigits.h"

namespace linewright::meaning {

namespace {

// The bytes that stand for characters of Code 128 that ASCII has not.
constexpr int kDelete = 195;
constexpr int kFnc3 = 196;
constexpr int kFnc2 = 197;
constexpr int kShift = 198;
constexpr int kFnc4 = 200;
constexpr int kFirstFnc1 = 202;
constexpr int kLastFnc1 = 218;
constexpr char kGroupSeparator = 29;

constexpr int ByteOf(char character) {
    return static_cast<unsigned char>(character);
}

constexpr bool IsFnc1(int byte) {
    return byte >= kFirstFnc1 && byte <= kLastFnc1;
}

constexpr bool IsFunction(int byte) {
    return (byte >= kDelete && byte <= kShift) || byte == kFnc4 || IsFnc1(byte);
}

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/** The number of so many digits in front; none where there are fewer. */
std::optional<int> LeadingNumber(std::string_view text, std::size_t count) {
    if (text.size() < count) return std::nullopt;
    int number = 0;
    for (const char character : text.substr(0, count)) {
        if (!IsDigit(character)) return std::nullopt;
        number = 10 * number + (character - '0');
    }
    return number;
}

/** The digits of the application identifier in parentheses that a text begins with; "" for none. */
std::string_view LeadingIdentifier(std::string_view text) {
    const std::size_t end = text.find(')');
    if (!text.starts_with('(') || end == std::string_view::npos) return "";
    const std::string_view digits = text.substr(1, end - 1);
    const bool isIdentifier = digits.size() >= 2 && digits.size() <= 4 &&
                              std::all_of(digits.begin(), digits.end(), IsDigit);
    return isIdentifier ? digits : "";
}

bool IsElementString(std::string_view text) {
    if (!text.starts_with('(')) return false;
    for (std::size_t place = text.find('('); place != std::string_view::npos;
         place = text.find('(', place + 1)) {
        if (LeadingIdentifier(text.substr(place)).empty()) return false;
    }
    return true;
}

/** "(01)…(10)…" as the characters of its elements with FNC1 in front and where it is needed, or
 *  between all. */
std::string Elements(std::string_view text, bool areAllSeparated) {
    std::string elements;
    bool isOpen = true;
    while (!text.empty()) {
        if (isOpen) elements += static_cast<char>(kFirstFnc1);
        const std::string_view identifier = LeadingIdentifier(text);
        const std::size_t start = identifier.size() + 2;
        const std::size_t end = std::min(text.find('(', start), text.size());
        elements += identifier;
        elements += text.substr(start, end - start);
        isOpen = areAllSeparated || PredefinedElementLength(identifier) == 0;
        text.remove_prefix(end);
    }
    return elements;
}

/** "~m" and two digits: the check digit of what stands before, in the characters `before`. */
char CheckDigitOfLast(std::string_view before, int count) {
    std::string digits;
    for (; !before.empty() && count > 0; before.remove_suffix(1)) {
        if (IsFunction(ByteOf(before.back()))) continue;
        --count;
        if (IsDigit(before.back())) digits.insert(digits.begin(), before.back());
    }
    return Modulo10CheckDigit(digits);
}

std::optional<int> ByteEscape(std::string_view text) {
    const auto byte = text.starts_with('~') ? LeadingNumber(text.substr(1), 3) : std::nullopt;
    return byte && *byte <= 255 ? byte : std::nullopt;
}

std::optional<int> CheckDigitEscape(std::string_view text) {
    return text.starts_with("~m") ? LeadingNumber(text.substr(2), 2) : std::nullopt;
}

std::string WithoutEscapes(std::string_view text) {
    std::string characters;
    while (!text.empty()) {
        const std::size_t length = std::max(EscapeLength(text), std::size_t{1});
        if (const auto byte = ByteEscape(text)) {
            characters += static_cast<char>(*byte);
        } else if (const auto count = CheckDigitEscape(text)) {
            characters += CheckDigitOfLast(characters, *count);
        } else {
            characters += text.front();
        }
        text.remove_prefix(length);
    }
    return characters;
}

}  // namespace

void Code128Text::Add(char character) {
    const bool isMoved = isUpper != isNextOther && ByteOf(character) < 128;
    text += isMoved ? static_cast<char>(ByteOf(character) + 128) : character;
    isBegun = true;
    isNextOther = false;
}

void Code128Text::AddPair(int pair) {
    text += static_cast<char>('0' + pair / 10);
    text += static_cast<char>('0' + pair % 10);
    isBegun = true;
}

void Code128Text::AddFnc1() {
    if (isBegun) {
        text += kGroupSeparator;
    } else {
        isGs1 = true;
    }
    isBegun = true;
}

void Code128Text::AddFnc4() {
    if (isNextOther) isUpper = !isUpper;
    isNextOther = !isNextOther;
    isBegun = true;
}

std::string Code128Characters(std::string_view data) {
    return WithoutEscapes(IsElementString(data) ? Elements(data, false) : std::string(data));
}

std::optional<std::string> SeparatedElements(std::string_view data) {
    if (!IsElementString(data)) return std::nullopt;
    return TextOfCharacters(WithoutEscapes(Elements(data, true)), false).text;
}

Code128Text TextOfCharacters(std::string_view characters, bool hasDelete) {
    Code128Text text;
    for (const char character : characters) {
        const int byte = ByteOf(character);
        if (IsFnc1(byte)) {
            text.AddFnc1();
        } else if (byte == kFnc4) {
            text.AddFnc4();
        } else if (byte == kFnc2 || byte == kFnc3 || byte == kShift) {
            text.AddOther();
        } else if (byte == kDelete) {
            text.Add('\x7F');
        } else if (byte != 127 || hasDelete) {
            text.Add(character);
        }
    }
    return text;
}

bool HasFunctionBehindControl(std::string_view characters) {
    bool isBehindControl = false;
    bool isFound = false;
    for (const char character : characters) {
        const int byte = ByteOf(character);
        if (byte == kShift || (byte > 127 && !IsFunction(byte))) return false;
        isBehindControl = isBehindControl || byte < 32;
        isFound = isFound || (isBehindControl && (byte == kDelete || byte == kFnc4));
    }
    return isFound;
}

std::size_t EscapeLength(std::string_view data) {
    return ByteEscape(data) || CheckDigitEscape(data) ? 4 : 0;
}

}  // namespace linewright::meaning
