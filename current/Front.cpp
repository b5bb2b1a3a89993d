#include "current/Front.h"

#include <limits>

#include "core/Formatting.h"
#include "core/ReplaceMarkers.h"
#include "core/Status.h"
#include "current/BuilderText.h"

namespace linewright {

namespace {

/** The longest data and a "0" in front of it. */
using NormalisedText = FixedText<kMaxFrontLength + 1>;

PMString TextOf(const Numbers& numbers) {
    PMString text;
    if (numbers.count == 1) {
        text.AsNumber(numbers.values[0]);
    } else {
        FormatAlternatives(numbers.values.data(), numbers.count, text);
    }
    return text;
}

void SetHint(PMString* hint, const LengthRule& rule) {
    if (!hint) return;
    hint->SetKey(rule.hintKey);
    const PMString first = TextOf(rule.first);
    const PMString second = TextOf(rule.second);
    ReplaceMarkers(*hint, &first, rule.second.count > 0 ? &second : nullptr);
}

void SetHint(PMString* hint, const CharacterRule& rule) {
    if (hint) hint->SetKey(rule.hintKey);
}

/** How many "0" belong in front of `length` characters. */
std::size_t PaddingFor(const FrontRule& rule, std::size_t length, bool addsCheckCharacter) {
    if (rule.padToPairs) return (length + addsCheckCharacter) % 2;
    return length < rule.padTo ? rule.padTo - length : 0;
}

/** The data without a check digit and with what belongs in front of it: a part of the data, or put
 *  together in `spare`. */
std::string_view Normalised(const FrontRule& rule, const EncoderArguments& arguments,
                            TextArea& spare) {
    std::string_view data = arguments.data.View();
    if (rule.length.checkDigitAt.Contain(static_cast<int32>(data.size()))) data.remove_suffix(1);
    const std::size_t padding = PaddingFor(rule, data.size(), arguments.checkCharacter != 0);
    if (padding > 0 || data.empty()) {
        spare.Append(padding, '0');
        spare.Append(data);
        data = spare.View();
    }
    return rule.characters.allowsNul ? data.substr(0, data.find('\0')) : data;
}

}  // namespace

bool LengthRule::Allows(int32 length) const {
    if (shortest == 0 && longest == 0) return first.Contain(length) || checkDigitAt.Contain(length);
    return IsInRange(length, shortest, longest);
}

int16 EncodeByRule(const FrontRule& rule, const EncoderArguments& arguments, TextArea& symbol) {
    if (arguments.hint) arguments.hint->Clear();

    constexpr uint32 kMaxLength = std::numeric_limits<int32>::max();
    if (!rule.length.Allows(static_cast<int32>(std::min(arguments.data.length, kMaxLength)))) {
        SetHint(arguments.hint, rule.length);
        return FinishWith(arguments.data, kLengthError, kBadLength);
    }
    if (!rule.characters.allows(arguments.data.View())) {
        SetHint(arguments.hint, rule.characters);
        return FinishWith(arguments.data, kDataError, kInvalidData);
    }

    NormalisedText spare;
    const std::string_view text = Normalised(rule, arguments, spare);
    if (arguments.humanReadable)
        arguments.humanReadable->SetString(text.data(), static_cast<int32>(text.size()));

    const int16 status = rule.build(text, arguments, symbol);
    return FinishWith(arguments.data, status == kEncoded ? symbol.View() : kProcessError, status);
}

}  // namespace linewright
