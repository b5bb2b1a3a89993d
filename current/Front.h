#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "BaseType.h"
#include "core/CharClasses.h"
#include "core/EncoderTable.h"
#include "core/FixedText.h"
#include "core/Refusals.h"

namespace linewright {

// What the symbologies of the current family do before their builders run: one front for all of
// them, which a row of rules per symbology drives.

/** The longest data that any front accepts. */
constexpr int32 kMaxFrontLength = 255;

/** Up to three numbers. */
struct Numbers {
    constexpr Numbers() = default;
    constexpr Numbers(std::initializer_list<int32> list) : count(static_cast<int32>(list.size())) {
        std::copy(list.begin(), list.end(), values.begin());
    }
    constexpr bool Contain(int32 number) const {
        for (int32 i = 0; i < count; ++i)
            if (values[static_cast<std::size_t>(i)] == number) return true;
        return false;
    }

    std::array<int32, 3> values{};
    int32 count = 0;
};

/** Which lengths are allowed, and the hint for others: a key whose markers the numbers fill. */
struct LengthRule {
    const char* hintKey;
    Numbers first{};
    Numbers second{};
    int32 shortest = 0;      // 0 for no bound, as for `longest`
    int32 longest = 0;       // both 0: the lengths are those of `first` and of `checkDigitAt`
    Numbers checkDigitAt{};  // lengths at which the last character is a check digit

    bool Allows(int32 length) const;
};

constexpr LengthRule AtMost(int32 longest) {
    return {.hintKey = hints::kLessThan, .first = {longest}, .longest = longest};
}
constexpr LengthRule Between(int32 shortest, int32 longest) {
    return {.hintKey = hints::kBetween,
            .first = {shortest},
            .second = {longest},
            .shortest = shortest,
            .longest = longest};
}
/** At most so many digits, or one more with the check digit. */
constexpr LengthRule AtMostOrCheckDigit(int32 longest) {
    return {.hintKey = hints::kLessThanOrCheckDigit,
            .first = {longest},
            .second = {longest + 1},
            .longest = longest + 1,
            .checkDigitAt = {longest + 1}};
}
/** One of these lengths, or one of those with the check digit. */
constexpr LengthRule OneOf(Numbers lengths, Numbers withCheckDigit) {
    return {.hintKey = hints::kMustBe,
            .first = lengths,
            .second = withCheckDigit,
            .checkDigitAt = withCheckDigit};
}

/** Which characters are allowed, and the key of the hint for others. */
struct CharacterRule {
    bool (*allows)(std::string_view text);
    const char* hintKey = nullptr;
    bool allowsNul = true;
};

/** Whether a text has characters of some classes and of `kExtra` alone, as for CheckCharClasses. */
template <int32 kClasses, const char* kExtra>
bool AreOfClass(std::string_view text) {
    static constexpr auto kAllowed = [] {
        std::array<bool, 256> allowed{};
        for (std::size_t byte = 0; byte < allowed.size(); ++byte)
            allowed[byte] = IsOfClass(static_cast<uint8>(byte), kClasses, kExtra);
        return allowed;
    }();
    bool areAllowed = true;
    for (const char byte : text) areAllowed &= kAllowed[static_cast<uint8>(byte)];
    return areAllowed;
}

constexpr CharacterRule kDigitsOnly{
    .allows = AreDigits, .hintKey = hints::kDigitsOnly, .allowsNul = false};
constexpr CharacterRule kEveryByte{[](std::string_view) { return true; }};

/** How a symbology's data is examined and normalised, and what makes the symbol of it. */
struct FrontRule {
    LengthRule length;
    CharacterRule characters;
    /** "0" in front of shorter data until it has this length. */
    std::size_t padTo = 0;
    /** "0" in front where the characters, with the check character asked for, would be odd. */
    bool padToPairs = false;
    /** Appends the font string of the normalised text; the result is the status. */
    int16 (*build)(std::string_view text, const EncoderArguments& arguments, TextArea& symbol);
};

/**
 * Replaces the data by the symbol's font string or, on failure, by an error text. The hint is
 * cleared, and set where the data is refused; the human-readable text is set to the normalised
 * data before the builder runs. A NUL ends the normalised data.
 *
 * @param symbol  empty, with room for the symbology's longest symbol
 * @return kEncoded, kBadLength, kInvalidData, the builder's status, or kInternalError without
 * memory for the result: then the data is as it was
 */
int16 EncodeByRule(const FrontRule& rule, const EncoderArguments& arguments, TextArea& symbol);

}  // namespace linewright
