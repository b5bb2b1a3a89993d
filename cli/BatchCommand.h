#pragma once

#include <string>

#include "cli/Console.h"
#include "merge/Batch.h"

namespace linewright {

struct BatchFiles {
    /** UTF-8; "-" is standard input. */
    std::string input;
    /** UTF-8; "-" is standard output. */
    std::string output = "-";
};

/** Makes the barcodes of a CSV file, with a summary on standard error; kRowsRefused when rows were
 *  refused. Throws Failure for files that cannot be read or written. */
ExitStatus RunBatch(Service& service, const BatchFiles& files, const BatchOptions& options,
                    Console& console);

}  // namespace linewright
