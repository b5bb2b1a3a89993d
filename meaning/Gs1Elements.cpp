#include "meaning/Gs1Elements.h"

#include <algorithm>
#include <optional>
#include <string>

#include "meaning/Gs1Identifiers.h"
#include "standards/CheckDigits.h"
#include "standards/TableChecks.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

using namespace meaning;

constexpr char kSeparator = 0x1D;

constexpr std::string_view kDigits = "0123456789";
/** GS1 General Specifications, figures 7.11-1 to 7.11-3. */
constexpr std::string_view kSet82 =
    "!\"%&'()*+,-./0123456789:;<=>?ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view kSet39 = "#-/0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kSet64 =
    "-0123456789=ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";
static_assert(kSet82.size() == 82 && kSet39.size() == 39 && kSet64.size() == 65);

/** A component of a format, see Gs1Identifiers. */
struct Component {
    std::string_view characters = kDigits;
    bool isOptional = false;
    std::size_t least = 0;
    std::size_t most = 0;
    char rule = ' ';
};

std::string_view CharactersOf(char set) {
    switch (set) {
        case 'x': return kSet82;
        case 'y': return kSet39;
        case 'z': return kSet64;
        case 'b': return "01";
        case '0': return "0";
        case '-': return "-";
        default: return kDigits;
    }
}

bool Skip(std::string_view& text, std::string_view start) {
    if (!text.starts_with(start)) return false;
    text.remove_prefix(start.size());
    return true;
}

/** Takes the first component off a format. */
Component TakeComponent(std::string_view& format) {
    Component component;
    component.isOptional = Skip(format, "?");
    component.characters = CharactersOf(format.front());
    format.remove_prefix(1);
    const bool isVariable = Skip(format, "..");
    for (; !format.empty() && ConsistsOf(format.substr(0, 1), kDigits); format.remove_prefix(1)) {
        component.most = 10 * component.most + static_cast<std::size_t>(format.front() - '0');
    }
    component.least = isVariable ? 1 : component.most;
    if (!format.empty() && format.front() != ' ') {
        component.rule = format.front();
        format.remove_prefix(1);
    }
    Skip(format, " ");
    return component;
}

int NumberOf(std::string_view digits) {
    int number = 0;
    for (const char digit : digits) number = 10 * number + (digit - '0');
    return number;
}

/** A day of YYMMDD or YYYYMMDD. The leap years of two digits are those of the century 2000. */
bool IsDate(std::string_view digits, bool mayLackDay) {
    constexpr std::array kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int year = NumberOf(digits.substr(0, digits.size() - 4));
    const int month = NumberOf(digits.substr(digits.size() - 4, 2));
    const int day = NumberOf(digits.substr(digits.size() - 2));
    if (month < 1 || month > 12) return false;
    const bool isLeapYear =
        year % 4 == 0 && (digits.size() == 6 || year % 100 != 0 || year % 400 == 0);
    const int days = kDays[static_cast<std::size_t>(month - 1)] + (month == 2 && isLeapYear);
    return (day >= 1 || mayLackDay) && day <= days;
}

/** HH or HHMM. */
bool IsTime(std::string_view digits) {
    return NumberOf(digits.substr(0, 2)) < 24 && NumberOf(digits.substr(2)) < 60;
}

bool IsPossible(std::string_view digits, char rule) {
    switch (rule) {
        case 'd': return IsDate(digits, true);
        case 'D': return IsDate(digits, false);
        case 't': return IsTime(digits);
        case 'T': return IsTime(digits) || digits == "9999";
        case 'm': return NumberOf(digits) < 60;
        default: return true;
    }
}

std::optional<Warning> WarningOf(std::string_view identifier, std::string_view value,
                                 const Component& component) {
    const std::size_t bad = value.find_first_not_of(component.characters);
    if (bad != std::string_view::npos) {
        return Warning{WarningReason::kElementCharacter,
                       {std::string(identifier), Utf8FromLatin1(value.substr(bad, 1))}};
    }
    if (component.rule == 'c') {
        const char computed = Modulo10CheckDigit(value.substr(0, value.size() - 1));
        if (value.back() == computed) return std::nullopt;
        return Warning{WarningReason::kElementCheckDigit,
                       {std::string(identifier), {value.back()}, {computed}}};
    }
    if (IsPossible(value, component.rule)) return std::nullopt;
    return Warning{WarningReason::kElementDate, {std::string(identifier), std::string(value)}};
}

/** "14", "1–20". */
std::string LengthsOf(std::string_view format) {
    std::size_t least = 0;
    std::size_t most = 0;
    while (!format.empty()) {
        const Component component = TakeComponent(format);
        if (!component.isOptional) least += component.least;
        most += component.most;
    }
    if (least == most) return std::to_string(least);
    return std::to_string(least) + "–" + std::to_string(most);
}

std::optional<Warning> WarningOf(const Gs1Element& element) {
    const Gs1Identifiers* const known = FindGs1Identifier(element.identifier);
    if (!known) return Warning{WarningReason::kNoIdentifier, {Utf8FromLatin1(element.identifier)}};
    std::optional<Warning> warning;
    std::string_view rest = element.value;
    bool isWhole = true;
    for (std::string_view format = known->format; !format.empty() && isWhole;) {
        const Component component = TakeComponent(format);
        if (component.isOptional && rest.empty()) break;
        const std::string_view value = rest.substr(0, component.most);
        rest.remove_prefix(value.size());
        isWhole = value.size() >= component.least;
        if (isWhole && !warning) warning = WarningOf(element.identifier, value, component);
    }
    if (isWhole && rest.empty()) return warning;
    return Warning{WarningReason::kElementLength,
                   {std::string(element.identifier), std::to_string(element.value.size()),
                    LengthsOf(known->format)}};
}

Gs1Elements Split(std::string_view data, bool isSeparated) {
    Gs1Elements split;
    while (!data.empty()) {
        std::size_t end = std::min(data.find(kSeparator), data.size());
        const std::size_t predefined = isSeparated ? 0 : PredefinedElementLength(data);
        if (predefined != 0) end = std::min(end, predefined);
        const std::size_t length = Gs1IdentifierLength(data);
        if (length == 0 || end < length) {
            split.rest = data;
            break;
        }
        split.elements.push_back({data.substr(0, length), data.substr(length, end - length)});
        data.remove_prefix(end);
        Skip(data, {&kSeparator, 1});
    }
    return split;
}

}  // namespace

Gs1Elements SplitElements(std::string_view carried) {
    return Split(carried, false);
}

Gs1Elements SplitSeparatedElements(std::string_view carried) {
    return Split(carried, true);
}

std::vector<Warning> ElementWarnings(const Gs1Elements& data) {
    constexpr std::size_t kLongestIdentifier = 4;
    std::vector<Warning> warnings;
    for (const Gs1Element& element : data.elements) {
        if (auto warning = WarningOf(element)) warnings.push_back(*std::move(warning));
    }
    if (!data.rest.empty()) {
        warnings.push_back({WarningReason::kNoIdentifier,
                            {Utf8FromLatin1(data.rest.substr(0, kLongestIdentifier))}});
    }
    return warnings;
}

}  // namespace linewright
