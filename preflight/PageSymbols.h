#pragma once

#include <vector>

#include "preflight/Document.h"
#include "preflight/FoundSymbol.h"

namespace linewright {

/** Reads and measures all symbols of a page, from its top on; bars that nobody reads too, with the
 *  fault that says so. Paints over the page's grey picture. */
std::vector<FoundSymbol> SymbolsOf(const Document& document, Page& page);

}  // namespace linewright
