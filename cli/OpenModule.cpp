#include <deque>
#include <stdexcept>

#include "cli/Installation.h"
#include "cli/Modules.h"
#include "host/runtime/Library.h"
#include "host/runtime/Paths.h"

namespace linewright {

const void* OpenModule(const char* name, const char* purpose) {
    // Never closed: what is on the stack may hold what a library made.
    static std::deque<host::Library>& libraries = *new std::deque<host::Library>;
    host::Library& library = libraries.emplace_back();
    const std::filesystem::path file = ModuleFile(name);
    library.Load(file, purpose);
    const auto entry = reinterpret_cast<const void* (*)()>(library.Find("GetModule"));
    if (!entry) throw std::runtime_error("no library of ours: " + host::Utf8FromPath(file));
    return entry();
}

}  // namespace linewright
