#include "classic/Msi.h"

#include "classic/FontLetters.h"
#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/Status.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr uint32 kLongestData = 250;

/** Whether the doubled digits, taken together as a number, exceed nine digits. */
bool ExceedsNineDoubledDigits(std::string_view digits) {
    for (std::size_t place = 2 * 9; place < digits.size(); place += 2)
        if (digits[digits.size() - 1 - place] != '0') return true;
    return false;
}

int16 Mod10(std::string_view digits, char& check) {
    if (!AreDigits(digits) || ExceedsNineDoubledDigits(digits)) return kBadData;
    check = MsiModulo10CheckDigit(digits);
    return kEncoded;
}

int16 Mod11(std::string_view digits, char& check) {
    if (!AreDigits(digits)) return kBadData;
    std::size_t sum = 0;
    for (std::size_t place = 0; place < digits.size(); ++place) {
        const std::size_t weight = 2 + place % 6;
        sum += static_cast<std::size_t>(digits[digits.size() - 1 - place] - '0') * weight;
    }
    const std::size_t value = (11 - sum % 11) % 11;
    if (value == 10) return kNoMsiMod11Check;
    check = static_cast<char>('0' + value);
    return kEncoded;
}

/** Appends the check digit over the digits, if the preference asks for one. */
int16 AppendCheck(int16 preference, TextArea& digits) {
    if (preference != 1 && preference != 2) return kEncoded;
    char check = '\0';
    const int16 status = (preference == 1 ? Mod10 : Mod11)(digits.View(), check);
    if (status == kEncoded) digits.Append(check);
    return status;
}

}  // namespace

int16 EncodeMsiClassic(DataBlock data, int16 firstCheck, int16 secondCheck) {
    if (data.length > kLongestData)
        return FinishWith(data, "***Bad MSI Plessey Bar Code, Data Too Long***", kBadData);
    FixedText<kLongestData + 2> digits;
    digits.Append(data.View());
    for (const int16 preference : {firstCheck, secondCheck}) {
        const int16 status = AppendCheck(preference, digits);
        if (status == kNoMsiMod11Check)
            return FinishWith(data, "***Invalid MSI Plessey Mod 11 Data***", status);
        if (status != kEncoded) return FinishWith(data, "***Bad MSI Plessey***", status);
    }
    FixedText<1 + kLongestData + 2 + 1> symbol;
    symbol.Append(classic::kStart);
    symbol.Append(digits.View());
    symbol.Append(classic::kStop);
    return FinishWith(data, symbol.View(), kEncoded);
}

int16 MsiMod10(const PString& digits, char& check) {
    return Mod10(digits.View(), check);
}
int16 MsiMod11(const PString& digits, char& check) {
    return Mod11(digits.View(), check);
}

}  // namespace linewright
