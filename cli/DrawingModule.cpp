#include "cli/Modules.h"

namespace linewright {

// What a drawing leaves to other modules.

std::string PdfOf(const BarcodeDrawing& drawing, const ExportOptions& options) {
    return Opened<PdfModule>().file(drawing, options);
}

std::string TiffOf(const BarcodeDrawing& drawing, const ExportOptions& options) {
    return Opened<TiffModule>().file(drawing, options);
}

}  // namespace linewright

/** The library's entry. */
extern "C" EXPORTED_DECL const void* GetModule() {
    using namespace linewright;
    static constexpr DrawingModule kModule{RunDraw, RunVerify, BarcodeScanner};
    return &kModule;
}
