#include "host/runtime/ConsoleFrontEnd.h"

#include <cstdio>

#include "host/runtime/Platform.h"

namespace host {

namespace {

const char* NameOf(AlertKind kind) {
    switch (kind) {
        case AlertKind::kInformation: return "note";
        case AlertKind::kWarning: return "warning";
        case AlertKind::kError: return "error";
    }
    return "";
}

}  // namespace

void ConsoleFrontEnd::ShowAlert(AlertKind kind, const char* text) {
    std::fprintf(stderr, "%s: %s\n", NameOf(kind), text);
}

void ConsoleFrontEnd::Beep() {
    if (StandardErrorIsTerminal()) std::fputc('\a', stderr);
}

}  // namespace host
