#pragma once

#include <optional>
#include <string>

#include "cli/BatchCommand.h"
#include "cli/Console.h"
#include "cli/EncodeCommand.h"
#include "requests/DrawingWish.h"

namespace linewright {

// What draws barcodes and reads them back; see cli/DrawingModule.h for how to get there.

struct DrawOptions {
    EncodeOptions encode;
    DrawingWish drawing;
    /** The folder that holds the fonts' files, UTF-8. */
    std::string fonts;
    /** Its ending says what is written; "-" is standard output. */
    std::string output;
    /** In place of the ending: "pdf", "eps", "svg", "png" or "tiff". */
    std::string format;
    /** "black", "cmyk:C,M,Y,K" in per cent, or the name of an ink. */
    std::string ink = "black";
    bool isGrey = false;
    std::optional<int> pixelsPerModule;
    bool isVerified = false;
    /** Without data the type is the name of a CSV file, whose rows are drawn. */
    bool hasData = true;
    RowOptions rows;
    /** Of a proof. */
    bool isLetter = false;
};

/** Draws one barcode into a file, or the rows of a CSV file each into one of its own, in whose name
 *  {line}, {type} and {data} stand for the row's; with `isVerified` what the scanners read goes to
 *  standard output, and kDoesNotScan says that it is not what is meant. */
ExitStatus RunDraw(Service& service, const DrawOptions& options, Console& console);

/** Draws one barcode in memory and says what the scanners read. */
ExitStatus RunVerify(Service& service, const DrawOptions& options, Console& console);

/** A sheet of all barcodes of a CSV file, with what the scanners read. kRowsRefused when rows were
 *  refused; with `isVerified` kDoesNotScan when a barcode does not scan as it is meant. */
ExitStatus RunProof(Service& service, const MergeFiles& files, const RowOptions& options,
                    const DrawOptions& drawing, Console& console);

}  // namespace linewright
