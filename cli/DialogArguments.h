#pragma once

#include "cli/DialogCommand.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the library's
class App;
}

namespace linewright {

/** The command that uses a dialog. What it writes to outlives it. */
void AddDialog(CLI::App& app, DialogOptions& dialog);

}  // namespace linewright
