#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/DrawCommand.h"
#include "render/Export.h"
#include "requests/DrawnFile.h"
#include "scanners/Verification.h"

namespace linewright {

/** How files are to be written. */
struct FileWish {
    FileFormat format;
    ExportOptions options;
};

/** Throws Failure where the options contradict each other or say nothing that can be had. */
FileWish FileWishOf(const DrawOptions& options);

/** Draws a barcode and reports warnings and a refusal to standard error; strict options refuse what
 *  there is a warning about. */
DrawnBarcode DrawOne(Service& service, Fonts& fonts, const BarcodeWish& wish,
                     const DrawOptions& options, Console& console);

/** Draws the rows of a CSV file, each into a file of its own. kRowsRefused when rows were refused,
 *  kDoesNotScan when one was to be verified and does not scan as it is meant. */
ExitStatus RunDrawRows(Service& service, const DrawOptions& options, const FileWish& file,
                       Console& console);

}  // namespace linewright
