#pragma once

#include "cli/CheckCommand.h"
#include "cli/DrawCommand.h"
#include "cli/ScannedBarcode.h"
#include "render/Export.h"
#include "scanners/Reading.h"

namespace linewright {

// Libraries of the command's own, so that it starts without all that drawing and reading need. Each
// is opened when something of it is first called.

struct DrawingModule {
    static constexpr const char* kName = "Drawing";
    static constexpr const char* kPurpose = "what draws barcodes and reads them back";
    decltype(RunDraw)* draw;
    decltype(RunVerify)* verify;
    decltype(BarcodeScanner)* scanner;
};

struct PdfModule {
    static constexpr const char* kName = "Pdf";
    static constexpr const char* kPurpose = "what writes PDF files";
    decltype(PdfOf)* file;
    decltype(RunProof)* proof;
};

struct DocumentModule {
    static constexpr const char* kName = "Document";
    static constexpr const char* kPurpose = "what sets documents";
    decltype(RunDocument)* document;
};

struct CheckModule {
    static constexpr const char* kName = "Check";
    static constexpr const char* kPurpose = "what reads documents back";
    decltype(RunCheck)* check;
};

struct TiffModule {
    static constexpr const char* kName = "Tiff";
    static constexpr const char* kPurpose = "what writes TIFF files";
    decltype(TiffOf)* file;
};

struct ScannersModule {
    static constexpr const char* kName = "Scanners";
    static constexpr const char* kPurpose = "what reads barcodes";
    decltype(ReadWithZxing)* zxing;
    decltype(ReadWithZbar)* zbar;
};

/** What the library of this name, beside the plug-in, gives out; it stays open for as long as the
 *  program runs. Throws std::runtime_error, which is no Failure of a row, where there is none. */
const void* OpenModule(const char* name, const char* purpose);

template <class Module>
const Module& Opened() {
    static const auto* const module =
        static_cast<const Module*>(OpenModule(Module::kName, Module::kPurpose));
    return *module;
}

}  // namespace linewright
