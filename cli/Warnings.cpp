#include "cli/Warnings.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "cli/PlugInConversion.h"
#include "text/Readable.h"
#include "text/Utf8.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsAllDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), IsDigit);
}

/** What an encoder leaves out of data that it accepts, as the text of those characters. */
using DropRule = std::string (*)(std::string_view data);

/** The bytes before the first NUL: all that some encoders see. */
std::string_view BeforeNul(std::string_view data) {
    return data.substr(0, data.find('\0'));
}

std::string FromNulOn(std::string_view data) {
    return std::string(data.substr(BeforeNul(data).size()));
}

std::string NonDigits(std::string_view data) {
    std::string dropped;
    std::remove_copy_if(data.begin(), data.end(), std::back_inserter(dropped), IsDigit);
    return dropped;
}

std::string NonDigitsAndFromNulOn(std::string_view data) {
    return NonDigits(BeforeNul(data)) + FromNulOn(data);
}

std::string Bytes128(std::string_view data) {
    return std::string(static_cast<std::size_t>(std::count(data.begin(), data.end(), '\x80')),
                       '\x80');
}

/** The length of the escape of Code 128 automatic at the start of `text`; 0 for none. */
std::size_t EscapeLength(std::string_view text) {
    if (text.size() < 4 || text[0] != '~') return 0;
    const bool isCheckDigit = text[1] == 'm' && IsAllDigits(text.substr(2, 2));
    const bool isByte = IsAllDigits(text.substr(1, 3)) && text.substr(1, 3) <= "255";
    return isCheckDigit || isByte ? 4 : 0;
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

/** The check digit of the EAN and UPC numbers: weight 3 on the last digit, then 1 and 3 in turn. */
char CheckDigit(std::string_view digits) {
    int sum = 0;
    int weight = digits.size() % 2 == 0 ? 1 : 3;
    for (const char digit : digits) {
        sum += weight * (digit - '0');
        weight = 4 - weight;
    }
    return static_cast<char>('0' + (10 - sum % 10) % 10);
}

/** The 11 digits of the UPC-A number that a number system and six UPC-E digits stand for
 *  (ISO/IEC 15420, zero suppression). */
std::string UpcANumberOf(std::string_view upcE) {
    const std::string start(upcE.substr(0, 3));  // number system and two digits
    switch (upcE[6]) {
        case '0':
        case '1':
        case '2': return start + upcE[6] + "0000" + std::string(upcE.substr(3, 3));
        case '3': return start + upcE[3] + "00000" + std::string(upcE.substr(4, 2));
        case '4': return start + upcE[3] + upcE[4] + "00000" + upcE[5];
        default: return std::string(upcE.substr(0, 6)) + "0000" + upcE[6];
    }
}

/** What a type's encoder does with data that it accepts. */
struct TypeRule {
    std::string_view shortName;
    DropRule dropped = nullptr;
    /** The lengths at which a check digit was supplied; its place is the last. */
    std::array<std::size_t, 2> withCheckDigit{};
    /** The lengths at which the last digit of an add-on goes. */
    std::array<std::size_t, 2> cutsAddOn{};
    bool isCode128 = false;
};

constexpr std::array<TypeRule, 15> kTypeRules{{
    {.shortName = "classic-postnet", .dropped = NonDigits},
    {.shortName = "classic-code128a", .isCode128 = true},
    {.shortName = "classic-code128b", .isCode128 = true},
    {.shortName = "classic-code128c", .isCode128 = true},
    {.shortName = "classic-code39ascii", .dropped = Bytes128},
    {.shortName = "classic-upce", .dropped = DigitsBeyondUpcE},
    {.shortName = "codabar", .dropped = FromNulOn},
    {.shortName = "code39", .dropped = FromNulOn},
    {.shortName = "code128", .dropped = DelAndFromNulOn, .isCode128 = true},
    {.shortName = "ean8", .withCheckDigit = {8}},
    {.shortName = "ean13", .withCheckDigit = {13}},
    {.shortName = "jan13", .withCheckDigit = {13}},
    {.shortName = "upca", .withCheckDigit = {12}, .cutsAddOn = {14, 17}},
    {.shortName = "upce", .withCheckDigit = {8, 12}},
    {.shortName = "postnet", .dropped = NonDigitsAndFromNulOn},
}};

TypeRule RuleOf(std::string_view typeName) {
    const BarcodeType* const type = FindTypeByPrefix(typeName);
    const std::string_view shortName = type ? type->shortName : "";
    for (const TypeRule& rule : kTypeRules) {
        if (rule.shortName == shortName) return rule;
    }
    return {};
}

bool Contains(const std::array<std::size_t, 2>& lengths, std::size_t length) {
    return length != 0 && std::find(lengths.begin(), lengths.end(), length) != lengths.end();
}

/** So many characters of a list are shown. */
constexpr std::size_t kShown = 20;

std::string Characters(std::size_t count) {
    return count == 1 ? "1 character" : fmt::format("{} characters", count);
}

std::string Shown(std::string_view utf8, bool isWhole) {
    return fmt::format("\"{}\"{}", Readable(utf8), isWhole ? "" : " …");
}

std::string AboveLatin1(const std::vector<char32_t>& dropped) {
    std::string text;
    for (std::size_t i = 0; i < std::min(dropped.size(), kShown); ++i) {
        AppendUtf8(text, dropped[i]);
    }
    return fmt::format("{} above U+00FF dropped: {}", Characters(dropped.size()),
                       Shown(text, dropped.size() <= kShown));
}

std::string DroppedByEncoder(std::string_view dropped) {
    return fmt::format("{} dropped by the encoder: {}", Characters(dropped.size()),
                       Shown(Utf8FromLatin1(dropped.substr(0, kShown)), dropped.size() <= kShown));
}

std::string NotWhatItLooksLike(char byte) {
    return fmt::format("byte 0x{:02X} does not print as \"{}\": Code 128 has no character for it",
                       static_cast<unsigned char>(byte), Readable(Utf8FromLatin1({&byte, 1})));
}

bool IsAbove127(char byte) {
    return static_cast<unsigned char>(byte) > 127;
}

void AddConversionWarnings(std::vector<std::string>& warnings, std::string_view data,
                           const ConvertedData& converted) {
    if (const auto invalid = FirstInvalidUtf8(data)) {
        warnings.push_back(fmt::format("byte {} of the data is not valid UTF-8", *invalid + 1));
    }
    if (!converted.dropped.empty()) warnings.push_back(AboveLatin1(converted.dropped));
}

void AddTypeWarnings(std::vector<std::string>& warnings, const TypeRule& rule,
                     std::string_view data) {
    if (rule.isCode128) {
        const std::string_view seen = rule.dropped ? BeforeNul(data) : data;
        const auto found = std::find_if(seen.begin(), seen.end(), IsAbove127);
        if (found != seen.end()) warnings.push_back(NotWhatItLooksLike(*found));
    }
    if (rule.dropped) {
        const std::string dropped = rule.dropped(data);
        if (!dropped.empty()) warnings.push_back(DroppedByEncoder(dropped));
    }
    if (!IsAllDigits(data)) return;
    if (Contains(rule.withCheckDigit, data.size())) {
        const std::string_view number = data.substr(0, data.size() - 1);
        const char computed =
            CheckDigit(number.size() == 7 && rule.shortName == "upce" ? UpcANumberOf(number)
                                                                      : std::string(number));
        if (data.back() != computed) {
            warnings.push_back(fmt::format(
                "the check digit {} was replaced by the computed one, {}", data.back(), computed));
        }
    }
    if (Contains(rule.cutsAddOn, data.size())) {
        warnings.push_back(
            fmt::format("the last digit of the add-on, {}, was dropped", data.back()));
    }
}

}  // namespace

std::vector<std::string> Warnings(std::string_view typeName, std::string_view data, bool isUtf8) {
    std::vector<std::string> warnings;
    ConvertedData converted;
    if (isUtf8) {
        converted = ConvertLikePlugIn(data);
        AddConversionWarnings(warnings, data, converted);
        data = converted.bytes;
    }
    data = TrimLikePlugIn(data);
    if (data.empty()) warnings.emplace_back("the data is empty");
    AddTypeWarnings(warnings, RuleOf(typeName), data);
    return warnings;
}

}  // namespace linewright
