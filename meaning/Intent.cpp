#include "meaning/Intent.h"

#include <algorithm>
#include <iterator>

#include "meaning/Code128Text.h"
#include "meaning/Code39Text.h"
#include "standards/CheckDigits.h"
#include "standards/TableChecks.h"

namespace linewright::meaning {

namespace {

std::string PaddedToPairs(std::string_view digits) {
    std::string padded(digits.size() % 2, '0');
    padded += digits;
    return padded;
}

/** Modulo 11 with the weights 2 to 7 from the right; ":" where the check would be 10. */
char MsiModulo11(std::string_view digits) {
    std::size_t sum = 0;
    for (std::size_t place = 0; place < digits.size(); ++place) {
        const char digit = digits[digits.size() - 1 - place];
        sum += static_cast<std::size_t>(digit - '0') * (2 + place % 6);
    }
    return static_cast<char>('0' + (11 - sum % 11) % 11);
}

std::string DigitsOf(std::string_view data) {
    std::string digits;
    std::copy_if(data.begin(), data.end(), std::back_inserter(digits),
                 [](char character) { return character >= '0' && character <= '9'; });
    return digits;
}

std::string Code39Text(std::string_view data, bool isCheckWanted) {
    std::string text(data);
    if (isCheckWanted) text += Modulo43(data);
    return text;
}

Intent AnyCheckOfCode39(const std::string& text) {
    Intent intent{.mayCarry = {text, text + Modulo43(text)}};
    if (AreDigits(text)) intent.mayCarry.push_back(text + Modulo10FromLeft(text));
    return intent;
}

}  // namespace

std::string_view BeforeNul(std::string_view data) {
    return data.substr(0, data.find('\0'));
}

bool AreDigits(std::string_view text) {
    return ConsistsOf(text, "0123456789");
}

Intent ClassicCode128Intent(const TypedData& data) {
    return {.mayCarry = {std::string(data.bytes)}};
}

Intent ClassicCode128CIntent(const TypedData& data) {
    return {.mayCarry = {PaddedToPairs(data.bytes)}};
}

Intent Code128Intent(const TypedData& data) {
    const Code128Text text = TextOfCharacters(Code128Characters(data.bytes), true);
    const std::string rest = Code128Characters(BeforeNul(data.bytes));
    return {.mayCarry = {text.text},
            .mayCarryOfRest = {TextOfCharacters(rest, false).text},
            .isGs1 = text.isGs1};
}

Intent ClassicCode39Intent(const TypedData& data) {
    return AnyCheckOfCode39(std::string(data.bytes));
}

Intent ClassicCode39FullAsciiIntent(const TypedData& data) {
    return AnyCheckOfCode39(FullAscii(data.bytes));
}

Intent Code39Intent(const TypedData& data) {
    return {.mayCarry = {Code39Text(data.bytes, data.isCheckWanted)},
            .mayCarryOfRest = {Code39Text(BeforeNul(data.bytes), data.isCheckWanted)}};
}

Intent ClassicCodabarIntent(const TypedData& data) {
    Intent intent;
    for (const char start : {'A', 'B', 'C', 'D'}) {
        for (const char stop : {'A', 'B', 'C', 'D'}) {
            intent.mayCarry.push_back(start + std::string(data.bytes) + stop);
        }
    }
    return intent;
}

Intent CodabarIntent(const TypedData& data) {
    return {.mayCarry = {'A' + std::string(data.bytes) + 'B'},
            .mayCarryOfRest = {'A' + std::string(BeforeNul(data.bytes)) + 'B'}};
}

/** The check digit weighs 3 on the first digit, and where the digits are even in number a zero
 *  stands in front of it. */
Intent ClassicInterleaved2of5Intent(const TypedData& data) {
    const std::string digits(data.bytes);
    Intent intent{.mayCarry = {PaddedToPairs(digits)}};
    if (digits.empty()) return intent;
    // With an odd number of digits the weight of the last one is 3 from either side.
    const std::string odd = digits.size() % 2 == 0 ? digits + '0' : digits;
    intent.mayCarry.push_back(odd + Modulo10CheckDigit(odd));
    return intent;
}

Intent Interleaved2of5Intent(const TypedData& data) {
    std::string digits(data.bytes);
    if (data.isCheckWanted) digits += Modulo10CheckDigit(digits);
    return {.mayCarry = {PaddedToPairs(digits)}};
}

Intent ClassicInterleaved2of5TextIntent(const TypedData& data) {
    return {.mayCarry = {std::string(data.bytes), PaddedToPairs(data.bytes)}};
}

Intent ClassicMsiIntent(const TypedData& data) {
    Intent intent{.mayCarry = {std::string(data.bytes)}};
    if (!AreDigits(data.bytes)) return intent;
    // None, one or two check digits, of which the second one covers the first.
    for (std::size_t next = 0, end = 1, count = 0; count < 2; ++count) {
        for (; next < end; ++next) {
            const std::string digits = intent.mayCarry[next];
            intent.mayCarry.push_back(digits + MsiModulo10CheckDigit(digits));
            intent.mayCarry.push_back(digits + MsiModulo11(digits));
        }
        end = intent.mayCarry.size();
    }
    return intent;
}

Intent MsiIntent(const TypedData& data) {
    std::string digits(data.bytes);
    if (data.isCheckWanted) digits += MsiModulo10CheckDigit(digits);
    return {.mayCarry = {digits}};
}

Intent ClassicPostnetIntent(const TypedData& data) {
    const std::string digits = DigitsOf(data.bytes);
    return {.mayCarry = {digits + PostnetCheckDigit(digits)}};
}

Intent PostnetIntent(const TypedData& data) {
    std::string digits = DigitsOf(BeforeNul(data.bytes));
    if (data.isCheckWanted) digits += PostnetCheckDigit(digits);
    return {.mayCarry = {digits}};
}

Intent IntelligentMailIntent(const TypedData&) {
    return {};
}

}  // namespace linewright::meaning
