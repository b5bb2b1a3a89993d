#include <algorithm>

#include "meaning/Intent.h"
#include "standards/CheckDigits.h"
#include "standards/UpcEZeroSuppression.h"

namespace linewright::meaning {

namespace {

/** A number with zeros in front of it and its check digit behind. */
std::string Number(std::size_t lengthWithoutCheck, std::string_view digits) {
    std::string number(lengthWithoutCheck - std::min(lengthWithoutCheck, digits.size()), '0');
    number += digits;
    return number + Modulo10CheckDigit(number);
}

/** All but EAN-8 are compared in this length. */
std::string Gtin13(std::string_view digits) {
    return Number(12, digits);
}

}  // namespace

Intent Ean13Intent(const TypedData& data) {
    if (!AreDigits(data.bytes)) return {};
    // The current types take up to 13 digits and no add-on; the classic ones 12 and an add-on.
    Intent intent{.mayCarry = {Gtin13(data.bytes.substr(0, 12))}};
    if (data.bytes.size() > 13) intent.addOn = data.bytes.substr(12);
    return intent;
}

Intent Ean8Intent(const TypedData& data) {
    if (!AreDigits(data.bytes)) return {};
    return {.mayCarry = {Number(7, data.bytes.substr(0, 7))}};
}

Intent UpcAIntent(const TypedData& data) {
    if (!AreDigits(data.bytes)) return {};
    Intent intent{.mayCarry = {Gtin13(data.bytes.substr(0, 11))}};
    const std::size_t length = data.bytes.size();
    // With 14 and 17 digits the twelfth is the check digit.
    if (length > 12) intent.addOn = data.bytes.substr(length == 14 || length == 17 ? 12 : 11);
    return intent;
}

Intent UpcEIntent(const TypedData& data) {
    if (!AreDigits(data.bytes) || data.bytes.size() < 7) return {};
    if (data.bytes.size() > 8) return {.mayCarry = {Gtin13(data.bytes.substr(0, 11))}};
    const auto ten = ExpandUpcE(data.bytes.substr(1, 6));
    return {.mayCarry = {Gtin13(data.bytes.front() + std::string(ten.begin(), ten.end()))}};
}

}  // namespace linewright::meaning
