#include "host/runtime/Halt.h"

#include <cstdio>
#include <cstdlib>

namespace host {

void Halt(const std::string& brokenRule) {
    std::fprintf(stderr, "linewright-host: %s\n", brokenRule.c_str());
    std::abort();
}

}  // namespace host
