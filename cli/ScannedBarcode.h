#pragma once

#include <functional>
#include <string>

#include "requests/BarcodeOutcome.h"

namespace linewright {

/** A barcode and what scanners made of it. Texts are UTF-8, "" for a refusal. */
struct ScannedBarcode {
    BarcodeOutcome outcome;
    /** "scans", "scans as …", "does not scan" or "no scanner for this symbology". */
    std::string scan;
    /** What the scanners read. */
    std::string read;
};

/** What makes a barcode, draws it in memory with the fonts in the folder `fonts` and reads it back;
 *  for one run, in which the service is alive; see cli/DrawingModule.h for how to get there. */
std::function<ScannedBarcode(const BarcodeWish&)> BarcodeScanner(Service& service,
                                                                 const std::string& fonts);

}  // namespace linewright
