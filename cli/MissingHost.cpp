#include <windows.h>
// after windows.h, which it needs
#include <delayimp.h>

#include <cstdlib>
#include <iostream>

#include "cli/Console.h"
#include "cli/Platform.h"
#include "host/runtime/Paths.h"

// The program asks for the host's library at its first call, so that it can say that there is none.

namespace {

FARPROC WINAPI EndWithoutHost(unsigned, PDelayLoadInfo missing) {
    linewright::PrepareStandardStreams();
    std::cerr << "linewright: the host cannot be loaded: "
              << host::Utf8FromPath(linewright::ProgramFolder() / missing->szDll)
              << ": Windows error " << missing->dwLastError << std::endl;
    std::_Exit(linewright::kTrouble);
}

}  // namespace

// Where the run-time library looks for what to call.
extern "C" {
PfnDliHook __pfnDliFailureHook2 = EndWithoutHost;
}
