#pragma once

#include <array>

#include "PMString.h"
#include "core/PString.h"

namespace linewright {

/** One barcode type. The flags tell the utility dialog what the type offers: 1 enables the check
 *  digit box, 2 ticks it, 3 enables the ratio. */
struct BarcodeTypeEntry {
    uint16 code = 0;  // type code 1 to 30; 0 in an empty entry
    PString name{};
    PMString displayText;
    uint16 optionFlag1 = 0;
    uint16 optionFlag2 = 0;
    uint16 optionFlag3 = 0;
};

/** Indices 0 to 14 hold the classic family, 15 to 26 the current one, 27 to 29 stay empty. */
using BarcodeTypeRegistry = std::array<BarcodeTypeEntry, 30>;
constexpr std::size_t kFirstCurrentType = 15;

/** The barcode types; read-only once built. Main thread only. */
extern BarcodeTypeRegistry registry;

/** Fills the registry, translating the display texts. Called once, at start-up. */
void BuildTypeRegistry();

/** The type code of the first type whose name begins the query, byte for byte; 0, the code of the
 *  empty entries, for an unknown type. */
int32 LookupTypeByName(const PString& name);

/** The first of all entries with this display text, an empty one for an empty text; nullptr when
 *  there is none. */
const BarcodeTypeEntry* FindTypeByDisplayText(const PMString& text);

/** Sets `out` to the display text of the first entry with this code and returns 0, or clears it and
 *  returns 1. */
int32 DisplayTextForCode(uint16 code, PMString& out);

}  // namespace linewright
