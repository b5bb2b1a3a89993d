#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "meaning/ArticleNumber.h"
#include "meaning/Meaning.h"
#include "requests/Service.h"
#include "types/BarcodeType.h"

namespace linewright {

/** A barcode as a person wants it. */
struct BarcodeWish {
    /** A type name of the plug-in, or a name that people write. */
    std::string type;
    std::string data;
    /** Whether the data is UTF-8, to be converted by the plug-in. */
    bool isUtf8 = true;
    uint8 checkCharacter = 0;
    double ratio = 2.0;
    /** Whether a warning is a refusal. */
    bool isStrict = false;
    /** Whether the data is an article number, to be brought to the type's form. */
    bool isArticleNumber = false;
};

enum class RefusalReason {
    /** No type has the name; `texts` are the nearest names. */
    kUnknownType,
    /** The plug-in refused the data; `texts` has its hint or the words of its marker, or nothing.
     */
    kPlugIn,
    /** There are warnings, and the wish is strict. */
    kStrict,
    /** The data is no article number for the type; `number` says why. */
    kNumber,
};

struct Refusal {
    RefusalReason reason;
    std::vector<std::string> texts{};
    std::optional<NumberFinding> number{};
};

/** What became of a wish. Texts are UTF-8. */
struct BarcodeOutcome {
    /** The type name that was sent, or what was written where it names no type. */
    std::string typeName;
    /** nullptr for an unknown type. */
    const BarcodeType* type = nullptr;
    /** The plug-in's status; none where it was not the plug-in that refused. */
    std::optional<int32> status{};
    /** The plug-in's hint on refused data. */
    std::string hint{};
    /** The font string; empty for a refusal. */
    std::string bytes{};
    /** What the plug-in left of data that it refused: a marker, or the data. */
    std::string marker{};
    std::optional<Refusal> refusal{};
    /** What was made of an article number; none where it had the form already. No warning. */
    std::optional<NumberFinding> note{};
    /** What the data and the bars mean, with all warnings; of a font string that was made. */
    Meaning meaning{};

    bool IsMade() const { return !refusal; }
    const std::vector<Warning>& Warnings() const { return meaning.warnings; }
};

/** The name that the plug-in gets for what a person wrote: one of its own is sent as it was
 * written;
 *  "" where it is none. `type` is the one that was found by it, or nullptr. */
std::string_view SentTypeName(std::string_view written, const BarcodeType* type);

/** Has the plug-in make a barcode, and refuses one with warnings where the wish is strict. Throws
 *  RequestFailure. */
BarcodeOutcome MakeBarcode(Service& service, const BarcodeWish& wish);

/** The same before it is decided whether warnings are a refusal, for who has more of them. */
BarcodeOutcome MakeBarcodeLeniently(Service& service, const BarcodeWish& wish);
/** Makes a refusal of a barcode that was made, for its warnings. */
void RefuseForWarnings(BarcodeOutcome& outcome);

}  // namespace linewright
