#pragma once

#include "types/BarcodeType.h"

namespace linewright {

// Bars end where a device's dots end, or they print wider or narrower than they are.

/** The stretch of a symbol, in modules, that must be whole dots so that all like bars print alike:
 *  a module, or half of one. Postal bars are far wider than a dot: from bar to bar is enough. */
double StretchOf(const BarcodeType& type, bool hasHalfModules);

/** A module that has whole dots a stretch. */
struct DotModule {
    /** Dots a stretch. */
    int dots;
    /** In points. */
    double module;
};

/** The one nearest to `module`, within the type's range of X-dimensions if any is. */
DotModule NearestDotModule(const BarcodeType& type, double stretch, double module,
                           double dotsPerInch);

}  // namespace linewright
