#pragma once

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

/** Makes a barcode, draws it in memory with the fonts in the folder `fonts` and reads it back.
 *  Throws Failure where there is no renderer (Windows). */
ScannedBarcode EncodeAndScan(Service& service, const BarcodeWish& wish, const std::string& fonts);

}  // namespace linewright
