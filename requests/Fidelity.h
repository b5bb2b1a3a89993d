#pragma once

#include "requests/BarcodeOutcome.h"

namespace linewright {

/** How what bars say stands to what was typed. */
enum class Fidelity {
    /** They say it, character for character, or it with its check digits behind. */
    kExact,
    /** Something was filled up, replaced, dropped or cut. */
    kChanged,
    /** They say nothing in characters: Intelligent Mail, and digits without bars. */
    kUntold,
};

/** Of a barcode that was made. GS1 elements that were typed with their brackets are said so too. */
Fidelity FidelityOf(const BarcodeOutcome& outcome, const BarcodeWish& wish);

}  // namespace linewright
