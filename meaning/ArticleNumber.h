#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "types/BarcodeType.h"

namespace linewright {

/** What is found of an article number. The comments say what the parameters are: texts in UTF-8. */
enum class NumberReason : std::uint8_t {
    /** The kind of number ("ISBN-10"), the number as it was written, and the data made of it. */
    kBrought,
    /** What was written: not the digits of any such number. */
    kNoNumber,
    /** The kind, the number, its check digit, and the computed one. */
    kWrongCheckDigit,
    /** The kind, the number, and the short name of the type in which it has no form. */
    kNoForm,
    /** The short name of a type that has none for any number. */
    kNoArticleType,
};

struct NumberFinding {
    NumberReason reason;
    std::vector<std::string> parameters{};

    bool operator==(const NumberFinding&) const = default;
};

/** A number in the form in which a type takes it. */
struct ArticleNumber {
    /** With its check digit, unless the type takes none; "" where the number was refused. */
    std::string data{};
    /** Why it was refused, or that it was brought to another form; none where it had the form. */
    std::optional<NumberFinding> finding{};
};

/**
 * Brings a number to a type's form: GTIN-8, -12, -13 and -14, ISBN-10, ISBN-13 and ISSN, with
 * single hyphens or spaces between digits. Eight digits are an ISSN where a hyphen parts four from
 * four or the last one is X, the digits of UPC-E for that type, and otherwise a GTIN-8. The types
 * are those of EAN and UPC, Interleaved 2 of 5 (14 digits) and the current Code 128 (identifier
 * 01). Any bytes will do.
 */
ArticleNumber BringToForm(const BarcodeType& type, std::string_view data);

}  // namespace linewright
