#include "meaning/Meaning.h"

#include <algorithm>
#include <array>

#include "meaning/CheckRules.h"
#include "meaning/Code128Meaning.h"

namespace linewright {

namespace {

using namespace verify;

bool IsAllDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return character >= '0' && character <= '9'; });
}

std::string PaddedTo(std::size_t width, std::string_view digits) {
    std::string padded(digits);
    if (padded.size() < width) padded.insert(0, width - padded.size(), '0');
    return padded;
}

std::string WithCheckDigit(std::string_view digits) {
    return std::string(digits) + Modulo10(digits);
}

/** The number of an EAN or UPC symbol in the length that all but EAN-8 are compared in. */
std::string Gtin13(std::string_view digitsWithoutCheck) {
    return WithCheckDigit(PaddedTo(12, digitsWithoutCheck));
}

// -------------------------------------------------------------------------------- EAN and UPC

void SetEan13(Meaning& meaning, const EncodedData& encoded) {
    const std::string_view data = encoded.data;
    // The current types take up to 13 digits and no add-on; the classic ones 12 and an add-on.
    meaning.carried = Gtin13(data.substr(0, 12));
    if (data.size() > 13) meaning.addOn = data.substr(12);
}

void SetEan8(Meaning& meaning, const EncodedData& encoded) {
    meaning.carried = WithCheckDigit(PaddedTo(7, encoded.data.substr(0, 7)));
}

void SetUpcA(Meaning& meaning, const EncodedData& encoded) {
    const std::string_view data = encoded.data;
    meaning.carried = Gtin13(data.substr(0, 11));
    const bool isCut = data.size() == 14 || data.size() == 17;
    meaning.addOn = data.size() <= 12 ? "" : data.substr(isCut ? 12 : 11);
    if (isCut) {
        meaning.warnings.push_back("the add-on of the symbol is " +
                                   std::string(data.substr(11, meaning.addOn.size())) + ", not " +
                                   meaning.addOn +
                                   ": data with both check digit and add-on loses its last "
                                   "digit");
    }
}

void SetUpcE(Meaning& meaning, const EncodedData& encoded) {
    const std::string_view data = encoded.data;
    const bool isLong = data.size() > 8;
    const std::string number =
        isLong ? std::string(data.substr(0, 11)) : ExpandedUpcE(data.substr(0, 7));
    meaning.carried = Gtin13(number);
    if (!SuppressedUpcE(number)) {
        meaning.warnings.emplace_back(
            "the number has no UPC-E form: it is printed in full with UPC-E's right guard, which "
            "no scanner knows");
    } else if (number[0] > '1') {
        meaning.warnings.push_back(
            std::string("UPC-E has no number system ") + number[0] +
            ": the bars say number system 0 with the check digit of another number");
    }
}

/** The digits that classic UPC-E prints: as many zeros as there are above four, then the others. */
std::string ClassicUpcEDigits(std::string_view tenDigits) {
    const auto zeros =
        static_cast<std::size_t>(std::count(tenDigits.begin(), tenDigits.end(), '0'));
    std::string printed(zeros > 4 ? zeros - 4 : 0, '0');
    std::copy_if(tenDigits.begin(), tenDigits.end(), std::back_inserter(printed),
                 [](char digit) { return digit != '0'; });
    return printed.substr(0, 6);
}

void SetClassicUpcE(Meaning& meaning, const EncodedData& encoded) {
    const std::string_view data = encoded.data;
    const std::string number = data.size() == 7 ? ExpandedUpcE(data) : std::string(data);
    meaning.carried = Gtin13(number);
    const std::string printed = ClassicUpcEDigits(std::string_view(number).substr(1));
    if (ExpandedUpcE('0' + printed) != number) {
        meaning.warnings.push_back("classic UPC-E prints the digits " + printed +
                                   ", which do not stand for this number");
    }
}

// ---------------------------------------------------------------------- Code 39, Codabar, 2 of 5

/** A character of full ASCII Code 39 (ISO/IEC 16388, annex A): the row of 32 that it lies in has a
 *  shift character for each stretch of letters. */
std::string FullAscii(unsigned char byte) {
    const auto pair = [](char shift, int letter) {
        return std::string{shift, static_cast<char>('A' + letter)};
    };
    if (byte == 0) return "%U";
    if (byte <= 26) return pair('$', byte - 1);
    if (byte <= 31) return pair('%', byte - 27);
    if (byte == ' ' || byte == '-' || byte == '.') return {static_cast<char>(byte)};
    if (byte >= '0' && byte <= '9') return {static_cast<char>(byte)};
    if (byte >= 'A' && byte <= 'Z') return {static_cast<char>(byte)};
    if (byte <= ':') return pair('/', byte - '!');
    if (byte <= '?') return pair('%', byte - ';' + 5);
    if (byte == '@') return "%V";
    if (byte <= '_') return pair('%', byte - '[' + 10);
    if (byte == '`') return "%W";
    if (byte <= 'z') return pair('+', byte - 'a');
    if (byte <= 127) return pair('%', byte - '{' + 15);
    return "";
}

/** Modulo 10 as the classic type has it: every other digit doubled, from the first one on. */
char Modulo10FromLeft(std::string_view digits) {
    int sum = 0;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const int value = (digits[i] - '0') * (i % 2 == 0 ? 2 : 1);
        sum += value / 10 + value % 10;
    }
    return static_cast<char>('0' + (10 - sum % 10) % 10);
}

void SetClassicCode39(Meaning& meaning, const EncodedData& encoded) {
    std::string text(encoded.data);
    if (meaning.task.isFullAscii) {
        text.clear();
        for (const char character : encoded.data) {
            text += FullAscii(static_cast<unsigned char>(character));
        }
    }
    const int mode = encoded.settings.code39CheckMode;
    meaning.carried = text;
    if (mode == 1) meaning.carried += Modulo10FromLeft(text);
    if (mode != 0 && mode != 1) meaning.carried += Modulo43(text);
    // A reader knows nothing of modulo 10: it translates the digit with the rest.
    meaning.task.hasModulo43 = mode != 0 && mode != 1;
    meaning.translated = !meaning.task.isFullAscii ? meaning.carried
                         : mode == 1               ? meaning.carried
                                                   : std::string(encoded.data);
}

void SetCode39(Meaning& meaning, const EncodedData& encoded) {
    meaning.carried = encoded.data;
    if (encoded.isCheckWanted) meaning.carried += Modulo43(encoded.data);
}

void SetClassicCodabar(Meaning& meaning, const EncodedData& encoded) {
    meaning.carried =
        encoded.settings.codabarStart + std::string(encoded.data) + encoded.settings.codabarStop;
}

void SetCodabar(Meaning& meaning, const EncodedData& encoded) {
    meaning.carried = 'A' + std::string(encoded.data) + 'B';
}

/** The check digit weighs from the left, and where the digits are even in number a zero stands in
 *  front of it. */
void SetClassicInterleaved2of5(Meaning& meaning, const EncodedData& encoded) {
    const std::string digits(encoded.data);
    const bool isOdd = digits.size() % 2 != 0;
    if (!encoded.settings.hasInterleaved2of5CheckDigit) {
        meaning.carried = isOdd ? '0' + digits : digits;
        return;
    }
    // With an odd number of digits the weight of the last one is 3 from either side.
    const std::string weighted = isOdd ? digits : digits + '0';
    meaning.carried = (isOdd ? digits : digits + '0') + Modulo10(weighted);
    if (digits.empty()) meaning.carried.clear();
}

void SetInterleaved2of5(Meaning& meaning, const EncodedData& encoded) {
    const std::string digits(encoded.data);
    const bool isOdd = digits.size() % 2 != 0;
    if (encoded.isCheckWanted) {
        meaning.carried = WithCheckDigit(isOdd ? digits : '0' + digits);
    } else {
        meaning.carried = isOdd ? '0' + digits : digits;
    }
}

// -------------------------------------------------------------------------------------- Code 128

void SetCode128A(Meaning& meaning, const EncodedData& encoded) {
    meaning.carried = encoded.data;
    AddSumWarning(meaning.warnings, 103, encoded.data);
}

void SetCode128B(Meaning& meaning, const EncodedData& encoded) {
    meaning.carried = encoded.data;
    AddSumWarning(meaning.warnings, 104, encoded.data);
}

void SetCode128C(Meaning& meaning, const EncodedData& encoded) {
    meaning.carried =
        encoded.data.size() % 2 == 0 ? std::string(encoded.data) : '0' + std::string(encoded.data);
    std::string values;
    for (std::size_t i = 0; i + 1 < meaning.carried.size(); i += 2) {
        values += static_cast<char>(32 + std::stoi(meaning.carried.substr(i, 2)));
    }
    AddSumWarning(meaning.warnings, 105, values);
}

void SetText(Meaning& meaning, const EncodedData&) {
    meaning.warnings.emplace_back("this type gives digits for people to read, without bars");
}

void SetNothing(Meaning&, const EncodedData&) {}

struct TypeRow {
    std::string_view typeName;
    Symbology symbology;
    void (*set)(Meaning& meaning, const EncodedData& encoded);
    bool isFullAscii = false;
    bool isDigitsOnly = false;
};

constexpr TypeRow kTypes[]{
    {"_BARCODE_POSTNET_", Symbology::kPostnet, SetNothing},
    {"_BARCODE_USPS_IM_", Symbology::kIntelligentMail, SetNothing},
    {"_BARCODE_CODABAR_", Symbology::kCodabar, SetClassicCodabar},
    {"_BARCODE_CODE128A_", Symbology::kCode128, SetCode128A},
    {"_BARCODE_CODE128B_", Symbology::kCode128, SetCode128B},
    {"_BARCODE_CODE128C_", Symbology::kCode128, SetCode128C, false, true},
    {"_BARCODE_CODE39_", Symbology::kCode39, SetClassicCode39},
    {"_BARCODE_CODE39ASCII_", Symbology::kCode39, SetClassicCode39, true},
    {"_BARCODE_EAN13_", Symbology::kEanUpc, SetEan13, false, true},
    {"_BARCODE_I2OF5_", Symbology::kInterleavedTwoOfFive, SetClassicInterleaved2of5, false, true},
    {"_BARCODE_I2OF5TEXT_", Symbology::kText, SetText},
    {"_BARCODE_JAN13_", Symbology::kEanUpc, SetEan13, false, true},
    {"_BARCODE_MSIPLESSEY_", Symbology::kMsi, SetNothing},
    {"_BARCODE_UPCA_", Symbology::kEanUpc, SetUpcA, false, true},
    {"_BARCODE_UPCE_", Symbology::kEanUpc, SetClassicUpcE, false, true},
    {"_QVT_BARCODE_CODABAR_", Symbology::kCodabar, SetCodabar},
    {"_QVT_BARCODE_CODE39_", Symbology::kCode39, SetCode39},
    {"_QVT_BARCODE_CODE128_", Symbology::kCode128, SetCode128Automatic},
    {"_BARCODE_EAN8_", Symbology::kEanUpc, SetEan8, false, true},
    {"_QVT_BARCODE_EAN13_", Symbology::kEanUpc, SetEan13, false, true},
    {"_QVT_BARCODE_I2OF5_TEXT_", Symbology::kText, SetText},
    {"_QVT_BARCODE_I2OF5_", Symbology::kInterleavedTwoOfFive, SetInterleaved2of5, false, true},
    {"_QVT_BARCODE_JAN13_", Symbology::kEanUpc, SetEan13, false, true},
    {"_QVT_BARCODE_MSI_", Symbology::kMsi, SetNothing},
    {"_QVT_BARCODE_UPCA_", Symbology::kEanUpc, SetUpcA, false, true},
    {"_QVT_BARCODE_UPCE_", Symbology::kEanUpc, SetUpcE, false, true},
    {"_QVT_BARCODE_POSTNET_", Symbology::kPostnet, SetNothing},
};

}  // namespace

Meaning MeaningOf(const EncodedData& encoded) {
    Meaning meaning;
    for (const TypeRow& type : kTypes) {
        if (type.typeName != encoded.typeName) continue;
        meaning.task.symbology = type.symbology;
        meaning.task.isFullAscii = type.isFullAscii;
        if (type.isDigitsOnly && !IsAllDigits(encoded.data)) break;
        type.set(meaning, encoded);
    }
    meaning.task.hasAddOn = !meaning.addOn.empty();
    if (meaning.translated.empty()) meaning.translated = meaning.carried;
    return meaning;
}

}  // namespace linewright
