#pragma once

#include <istream>
#include <ostream>

namespace linewright {

/** What a command reads from and writes to. The streams carry bytes: no line ending is changed. */
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool isErrTerminal = false;
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
