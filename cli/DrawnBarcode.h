#pragma once

#include <optional>
#include <string>

#include "cli/DrawCommand.h"
#include "cli/Encoding.h"
#include "render/BarcodeDrawing.h"
#include "scanners/Verification.h"

namespace linewright {

/** A barcode that was made and drawn, and what it means. */
struct DrawnBarcode {
    /** With the warnings about its drawing among the others. */
    BarcodeOutcome outcome;
    /** None where the outcome was a refusal. */
    std::optional<BarcodeDrawing> drawing;
    Meaning meaning;
};

/** Makes and draws. With `isStrict` a warning is a refusal. Throws Failure for a wish that cannot
 * be met and for fonts that are not there. */
DrawnBarcode DrawBarcode(Service& service, const EncodeRequest& request, bool isStrict,
                         const DrawingWish& wish);

/** "scans", "scans as …", "does not scan" or "no scanner for this symbology". */
std::string VerdictWords(const Verification& verification);

/** What the scanners read, one text where they agree; "" where none read anything. UTF-8. */
std::string WhatWasRead(const Verification& verification);

}  // namespace linewright
