#include "cli/DrawingModule.h"
#include "cli/Installation.h"
#include "host/runtime/Library.h"
#include "host/runtime/Paths.h"
#include "merge/Failure.h"

namespace linewright {

namespace {

const DrawingModule& Open() try {
    const std::filesystem::path file = DrawingModuleFile();
    const std::string name = host::Utf8FromPath(file);
    if (!exists(file)) throw Failure("nothing here draws barcodes: " + name + " is missing");
    // Never closed: what is on the stack may hold what the library made.
    static host::Library& library = *new host::Library;
    library.Load(file, "what draws barcodes and reads them back");
    const auto entry =
        reinterpret_cast<const DrawingModule* (*)()>(library.Find("GetDrawingModule"));
    if (!entry) throw Failure("nothing that draws: " + name);
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
