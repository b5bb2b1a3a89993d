#include "cli/DrawingModule.h"
#include "cli/Installation.h"
#include "host/runtime/Library.h"
#include "host/runtime/Paths.h"
#include "merge/Failure.h"

namespace linewright {

namespace {

const DrawingModule& Open() try {
    // Never closed: what is on the stack may hold what the library made.
    static host::Library& library = *new host::Library;
    library.Load(DrawingModuleFile(), "what draws barcodes and reads them back");
    const auto entry =
        reinterpret_cast<const DrawingModule* (*)()>(library.Find("GetDrawingModule"));
    if (!entry) throw Failure("nothing that draws: " + host::Utf8FromPath(DrawingModuleFile()));
    return *entry();
} catch (const std::runtime_error& error) {
    throw Failure(error.what());
}

}  // namespace

const DrawingModule& OpenDrawingModule() {
    static const DrawingModule& module = Open();
    return module;
}

}  // namespace linewright
