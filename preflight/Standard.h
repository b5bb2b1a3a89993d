#pragma once

#include "preflight/FoundSymbol.h"
#include "types/BarcodeType.h"

namespace linewright {

/** The dimensions of the symbology of what was found, or of the type that it should be. */
const Dimensions& DimensionsOf(const FoundSymbol& symbol, const BarcodeType* type = nullptr);

/** Sets what was measured against the standard, and adds what is not as it should be. */
void JudgeMeasures(FoundSymbol& symbol, const BarcodeType* type);

}  // namespace linewright
