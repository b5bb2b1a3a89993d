#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace linewright {

/** Why a barcode that was made may not be what a person wants. The comments say what the parameters
 *  are: numbers in decimal, texts in UTF-8 that may hold control characters. */
enum class WarningReason : std::uint8_t {
    /** The place of the first byte that is not valid UTF-8, from 1. */
    kNotUtf8,
    /** How many characters above U+00FF were left out; the first kMostShown of them. */
    kAboveLatin1,
    kEmptyData,
    /** The byte's two hexadecimal digits; the Latin-1 character that it looks like. */
    kNoCode128Character,
    /** How many characters the encoder left out; the first kMostShown of them. */
    kDroppedByEncoder,
    /** The check digit in the data; the one in the bars. */
    kCheckDigitReplaced,
    /** The add-on in the bars; the one in the data. */
    kAddOnCut,
    /** The check character of a long classic Code 128 symbol is a wrong one. */
    kCode128SumOverflow,
    /** Code 128 without a start character. */
    kNoCode128Start,
    /** DEL or FNC4 of Code 128 stands where set A has another character. */
    kFunctionOfSetB,
    /** A number whose zeros UPC-E cannot suppress. */
    kNoUpcEForm,
    /** The number system digit, which UPC-E has not. */
    kNoUpcENumberSystem,
    /** The six digits in the bars of a classic UPC-E, which stand for another number. */
    kOtherUpcEDigits,
    /** A type without bars, where bars are wanted. */
    kNoBars,
    /** GS1-128 was asked for, and the data has no application identifiers. */
    kNoIdentifiers,
    /** ITF-14 was asked for. How many digits the symbol has. */
    kNotFourteenDigits,
    /** What the bars say, as Meaning::barsSay: for another reason than one above it is not what the
     *  data means. */
    kBarsSay,
    /** The same of a type that gives digits to be read. */
    kDigitsSay,
    /** How many zeros the encoder put in front of a retail number; the number in the bars. */
    kFilledUp,
    /** ITF-14 was asked for. The last digit of the symbol; the check digit of those before it. */
    kWrongItf14CheckDigit,
    /** The digits where no GS1 application identifier is. */
    kNoIdentifier,
    /** A GS1 application identifier, how long its value is, and how long it has to be. */
    kElementLength,
    /** A GS1 application identifier; the character that cannot be in its value. */
    kElementCharacter,
    /** A GS1 application identifier, the check digit in its value, and the computed one. */
    kElementCheckDigit,
    /** A GS1 application identifier; what is no date or time in its value. */
    kElementDate,
    /** No scanner finds a symbol in the font string. */
    kNoSymbol,
};

/** So many characters of a list are a warning's parameter. */
inline constexpr std::size_t kMostShown = 20;

/** What a person should know of a barcode that was made. */
struct Warning {
    WarningReason reason;
    std::vector<std::string> parameters{};

    bool operator==(const Warning&) const = default;
};

}  // namespace linewright
