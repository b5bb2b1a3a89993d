#pragma once

#include <string_view>
#include <vector>

#include "types/BarcodeType.h"

namespace linewright {

/** What people mean beyond the type by some of its names. */
enum class Expectation : std::uint8_t {
    kNone,
    /** GS1-128: the data has GS1 application identifiers. */
    kIdentifiers,
    /** ITF-14: the symbol has 14 digits. */
    kFourteenDigits,
};

/** A type as a person wrote it. */
struct WrittenType {
    /** nullptr for what names none. */
    const BarcodeType* type = nullptr;
    Expectation expectation = Expectation::kNone;
};

/** Finds a type by what a person wrote: a type name of the plug-in, which it also knows by its
 *  beginning; else, whatever the case and without hyphens, blanks and underscores, a short name or
 *  another usual name (EAN-13, ISBN, GS1-128). A plain name means the current family. */
WrittenType FindWrittenType(std::string_view written);

/** The names that need the fewest changes to become what a person wrote, the nearest first: short
 *  names, or type names where the text looks like one. */
std::vector<std::string_view> NearestTypeNames(std::string_view written);

}  // namespace linewright
