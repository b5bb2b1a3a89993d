#include "meaning/Code128Meaning.h"

#include <algorithm>
#include <cstdint>
#include <regex>

#include "meaning/CheckRules.h"

namespace linewright::verify {

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

int ByteAt(const std::string& text, std::size_t place) {
    return static_cast<unsigned char>(text[place]);
}

bool IsFnc1(int byte) {
    return byte >= kFirstFnc1 && byte <= kLastFnc1;
}

bool IsFunction(int byte) {
    return (byte >= kDelete && byte <= kShift) || byte == kFnc4 || IsFnc1(byte);
}

bool AreDigits(const std::string& text, std::size_t place, std::size_t count) {
    if (place + count > text.size()) return false;
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(place),
                       text.begin() + static_cast<std::ptrdiff_t>(place + count),
                       [](char character) { return character >= '0' && character <= '9'; });
}

/** GS1 General Specifications, figure 7.8.5-1: the first two digits of the identifiers whose
 *  elements need no separator. */
bool NeedsSeparator(const std::string& identifier) {
    static const std::regex predefined("^(0[0-4]|1[1-9]|20|3[1-6]|41).*");
    return !std::regex_match(identifier, predefined);
}

/** "(01)…(10)…" as the characters of its elements with FNC1 in front and where it is needed. */
std::string GS1Elements(const std::string& text) {
    static const std::regex element("\\((\\d{2,4})\\)([^(]*)");
    std::string result(1, static_cast<char>(kFirstFnc1));
    bool isOpen = false;
    for (std::sregex_iterator found(text.begin(), text.end(), element), none; found != none;
         ++found) {
        if (isOpen) result += static_cast<char>(kFirstFnc1);
        result += (*found)[1].str() + (*found)[2].str();
        isOpen = NeedsSeparator((*found)[1].str());
    }
    return result;
}

/** "~m" and two digits: the check digit of what stands before, in the characters `before`. */
char CheckDigitOfLast(const std::string& before, std::size_t count) {
    std::string digits;
    for (std::size_t place = before.size(); place > 0 && count > 0; --place) {
        const int byte = ByteAt(before, place - 1);
        if (IsFunction(byte)) continue;
        --count;
        if (byte >= '0' && byte <= '9') digits.insert(digits.begin(), static_cast<char>(byte));
    }
    return Modulo10(digits);
}

/** "~202" and "~m13" as the bytes that they stand for. */
std::string WithoutEscapes(const std::string& text) {
    std::string result;
    for (std::size_t place = 0; place < text.size();) {
        if (text[place] == '~' && AreDigits(text, place + 1, 3) &&
            std::stoi(text.substr(place + 1, 3)) <= 255) {
            result += static_cast<char>(std::stoi(text.substr(place + 1, 3)));
            place += 4;
        } else if (text.compare(place, 2, "~m") == 0 && AreDigits(text, place + 2, 2)) {
            result += CheckDigitOfLast(
                result, static_cast<std::size_t>(std::stoi(text.substr(place + 2, 2))));
            place += 4;
        } else {
            result += text[place++];
        }
    }
    return result;
}

/** The characters to be encoded, function characters as their bytes. */
std::string CharactersOf(std::string_view data) {
    const std::string text(data);
    static const std::regex elements("^(\\(\\d{2,4}\\)[^(]*)+$");
    const bool isGs1 = text.starts_with('(') && std::regex_match(text, elements);
    return WithoutEscapes(isGs1 ? GS1Elements(text) : text);
}

/** Whether set A is in force where a byte stands that means something else in it: the encoder
 *  starts by the first characters, takes set C for four digits and more, set A for control
 *  characters and keeps it for capitals, and set B for the rest. */
bool HasFunctionOfSetB(const std::string& text) {
    const int first = text.empty() ? 0 : ByteAt(text, 0);
    char set = AreDigits(text, 0, 4) || IsFnc1(first) ? 'C' : first < 32 ? 'A' : 'B';
    for (std::size_t place = 0; place < text.size();) {
        const int byte = ByteAt(text, place);
        if (byte == kDelete || byte == kFnc4) {
            if (set == 'A') return true;
            set = 'B';
            ++place;
        } else if (IsFunction(byte)) {
            if (!IsFnc1(byte) && set == 'C') set = 'B';
            ++place;
        } else if (AreDigits(text, place, set == 'C' ? 2 : 4)) {
            std::size_t end = place;
            while (AreDigits(text, end, 1)) ++end;
            if (set != 'C' && (end - place) % 2 != 0) ++place;
            set = 'C';
            place += 2;
        } else {
            if (byte < 32) {
                set = 'A';
            } else if (byte < 127 && (set != 'A' || byte == 32 || byte > 95)) {
                set = 'B';
            }
            ++place;
        }
    }
    return false;
}

/** Bytes that the encoder chooses no start character for. */
bool HasNoStart(const std::string& text) {
    if (text.empty()) return false;
    const int first = ByteAt(text, 0);
    const bool isStart = first < 127 || first == kFnc2 || first == kFirstFnc1 || first >= 212;
    return !isStart;
}

}  // namespace

void AddSumWarning(std::vector<std::string>& warnings, int startValue,
                   std::string_view characters) {
    std::int64_t sum = startValue;
    std::int64_t position = 0;
    for (const char character : characters) {
        const int byte = static_cast<unsigned char>(character);
        sum += ++position * (byte < 32 ? byte + 64 : byte - 32);
    }
    if (sum <= INT16_MAX) return;
    warnings.emplace_back(
        "the data is too long for the check character, whose sum is kept in 16 bits: scanners "
        "refuse the symbol");
}

void SetCode128Automatic(Meaning& meaning, const EncodedData& encoded) {
    const std::string text = CharactersOf(encoded.data);
    meaning.isGs1 = !text.empty() && IsFnc1(ByteAt(text, 0));
    bool isUpper = false;
    for (std::size_t place = meaning.isGs1 ? 1 : 0; place < text.size(); ++place) {
        const int byte = ByteAt(text, place);
        if (IsFnc1(byte)) {
            meaning.carried += kGroupSeparator;
        } else if (byte == kDelete) {
            meaning.carried += '\x7F';
        } else if (byte == kFnc4) {
            isUpper = true;
        } else if (byte != kFnc2 && byte != kFnc3 && byte != kShift) {
            meaning.carried += static_cast<char>(isUpper && byte < 128 ? byte + 128 : byte);
            isUpper = false;
        }
    }
    if (HasNoStart(text)) {
        meaning.warnings.emplace_back(
            "the encoder has no start character for data that begins so: no scanner finds the "
            "symbol");
    }
    if (HasFunctionOfSetB(text)) {
        meaning.warnings.emplace_back(
            "byte 195 or 200 stands behind a control character, where it means something else: "
            "scanners read on in the wrong set");
    }
}

}  // namespace linewright::verify
