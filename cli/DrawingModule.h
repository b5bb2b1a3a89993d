#pragma once

#include "cli/DrawCommand.h"
#include "cli/ScannedBarcode.h"

namespace linewright {

/** What draws barcodes and reads them back. It is a library of its own, so that a command that does
 *  neither starts without all that drawing and reading need. */
struct DrawingModule {
    decltype(RunDraw)* draw;
    decltype(RunVerify)* verify;
    decltype(RunProof)* proof;
    decltype(BarcodeScanner)* scanner;
};

/** Opens the library beside the plug-in, for as long as the program runs. Throws Failure where
 * there is none. */
const DrawingModule& OpenDrawingModule();

}  // namespace linewright
