#include "cli/DrawingModule.h"

/** The library's entry. */
extern "C" EXPORTED_DECL const linewright::DrawingModule* GetDrawingModule() {
    using namespace linewright;
    static constexpr DrawingModule kModule{RunDraw, RunVerify, RunProof, BarcodeScanner};
    return &kModule;
}
