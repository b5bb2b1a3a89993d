#pragma once

#include <istream>
#include <ostream>

#include "words/Words.h"

namespace linewright {

/** What a command reads from and writes to. The streams carry bytes: no line ending is changed. */
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool isErrTerminal = false;
    /** Of warnings and refusals, as the plug-in's hints are in the host's locale. */
    Language language = Language::kEnglish;
};

/** Exit statuses of the command. */
enum ExitStatus : int {
    kDone = 0,
    kRefused = 1,
    /** A mistake in the command line, or a file, host or plug-in that does not work. */
    kTrouble = 2,
    kRowsRefused = 3,
    /** A barcode does not scan as what is meant. */
    kDoesNotScan = 4,
};

}  // namespace linewright
