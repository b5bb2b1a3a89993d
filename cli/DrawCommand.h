#pragma once

#include <optional>
#include <string>

#include "cli/Batch.h"
#include "cli/BatchCommand.h"
#include "cli/Console.h"
#include "cli/EncodeCommand.h"
#include "requests/DrawingWish.h"

namespace linewright {

// What draws barcodes and reads them back. In a build without a renderer (Windows) each of these
// throws a Failure that says so.

struct DrawOptions {
    EncodeOptions encode;
    DrawingWish drawing;
    /** Its ending says what is written: .pdf, .eps, .svg or .png. */
    std::string output;
    std::optional<double> dotsPerInch;
    std::optional<int> pixelsPerModule;
    bool isVerified = false;
};

/** Draws one barcode into a file; with `isVerified` what the scanners read goes to standard output,
 *  and kDoesNotScan says that it is not what is meant. */
ExitStatus RunDraw(Service& service, const DrawOptions& options, Console& console);

/** Draws one barcode in memory and says what the scanners read. */
ExitStatus RunVerify(Service& service, const DrawOptions& options, Console& console);

/** A sheet of all barcodes of a CSV file, with what the scanners read. kRowsRefused when rows were
 *  refused; with `isVerified` kDoesNotScan when a barcode does not scan as it is meant. */
ExitStatus RunProof(Service& service, const BatchFiles& files, const BatchOptions& options,
                    const DrawOptions& drawing, Console& console);

}  // namespace linewright
