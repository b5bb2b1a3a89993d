#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "types/BarcodeFace.h"
#include "types/Dimensions.h"
#include "types/TypeCode.h"

namespace linewright {

/** The generation of fonts that a type writes for. */
enum class Family : std::uint8_t { kClassic, kCurrent };

/** Where a type is at home; the classic ones that a current type has replaced are a group. */
enum class Group : std::uint8_t { kRetail, kLogistics, kPostal, kLibrary, kClassic };

/** What the bars are. */
enum class Symbology : std::uint8_t {
    /** Digits to be read by people, without bars. */
    kText,
    kCode128,
    kCode39,
    kCodabar,
    kInterleaved2of5,
    kEanUpc,
    kMsi,
    kPostnet,
    kIntelligentMail,
};

/** Whether common scanners know a symbology. */
constexpr bool HasScanner(Symbology symbology) {
    switch (symbology) {
        case Symbology::kCode128:
        case Symbology::kCode39:
        case Symbology::kCodabar:
        case Symbology::kInterleaved2of5:
        case Symbology::kEanUpc: return true;
        case Symbology::kText:
        case Symbology::kMsi:
        case Symbology::kPostnet:
        case Symbology::kIntelligentMail: return false;
    }
    return false;
}

/** Who decides whether the symbol gets a check digit or character for the data. */
enum class CheckDigit : std::uint8_t { kNone, kAlways, kOnRequest, kByPreference };

/** What sets a type apart from the others of its symbology. */
enum class Trait : std::uint8_t {
    kNone,
    /** Pairs of characters stand for ASCII. */
    kFullAscii,
    /** The first digit of a result is printed as large as the others. */
    kLargeFirstDigit,
};

/** Lengths of data at which something holds; 0 fills up. */
struct Lengths {
    std::array<std::uint8_t, 2> lengths{};

    constexpr bool Has(std::size_t length) const {
        return length != 0 && (lengths[0] == length || lengths[1] == length);
    }
};

/** All that is known of a barcode type without encoding anything. */
struct BarcodeType {
    TypeCode code;
    /** The name by which callers ask the plug-in for it. */
    std::string_view name;
    /** The name that people type. */
    std::string_view shortName;
    /** The key of the name that people see. */
    std::string_view displayKey;
    /** What the utility dialog offers: 1 enables the check digit box, 2 ticks it, 3 enables the
     *  ratio. */
    std::array<std::uint16_t, 3> optionFlags;
    Family family;
    Group group;
    Symbology symbology;
    /** None for a type whose result is digits to be read, without bars. */
    const BarcodeFace* face;
    Dimensions dimensions;
    CheckDigit check = CheckDigit::kNone;
    Trait trait = Trait::kNone;
    /** The lengths of data that end with a check digit, which the encoder replaces by its own. */
    Lengths checkSuppliedAt{};
    /** The lengths of data at which the last digit of an add-on is dropped. */
    Lengths addOnCutAt{};

    /** The width of a module in points. */
    constexpr double Module() const { return dimensions.xDimension / dimensions.modulesPerX; }
    /** Postal bars have the heights of their standards. */
    constexpr bool HasFixedHeight() const { return dimensions.modulesPerX > 1; }
};

}  // namespace linewright
