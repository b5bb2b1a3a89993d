#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/DialogUser.h"

namespace linewright {

/** How a dialog of the plug-in is used. */
struct DialogOptions {
    /** 250 or 251. */
    uint32 resource = 0;
    /** In the order of the command line. */
    std::vector<DialogStep> steps;
    bool isJson = false;
    /** Steps come from standard input, a JSON object a line, and each is answered by one. */
    bool isScript = false;
};

/** Opens a dialog in the host that `user` is the front end of, does the steps, and prints what is
 *  seen. Throws Failure when a step cannot be done; a script goes on and ends with kTrouble. */
ExitStatus RunDialog(DialogUser& user, const DialogOptions& options, Console& console);

}  // namespace linewright
