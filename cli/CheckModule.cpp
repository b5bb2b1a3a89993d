#include "cli/Modules.h"

/** The library's entry. */
extern "C" EXPORTED_DECL const void* GetModule() {
    using namespace linewright;
    static constexpr CheckModule kModule{RunCheck};
    return &kModule;
}
