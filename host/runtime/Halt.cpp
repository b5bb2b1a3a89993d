#include "host/runtime/Halt.h"

#include <cstdio>
#include <cstdlib>
#include <new>

#include "host/runtime/Host.h"

namespace host {

void Halt(const std::string& brokenRule) {
    std::fprintf(stderr, "linewright-host: %s\n", brokenRule.c_str());
    std::abort();
}

namespace {

const char* programName = "";

[[noreturn]] void End() {
    constexpr int kTrouble = 2;
    std::fprintf(stderr, "%s: there is not enough memory\n", programName);
#ifdef _WIN32
    std::_Exit(kTrouble);  // drafts go with their handles
#else
    std::quick_exit(kTrouble);
#endif
}

}  // namespace

void EndWithoutMemory(const char* program) {
    programName = program;
    std::set_new_handler(End);
}

}  // namespace host
