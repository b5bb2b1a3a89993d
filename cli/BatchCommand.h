#pragma once

#include "cli/Console.h"
#include "merge/MergeFile.h"

namespace linewright {

/** Makes the barcodes of a CSV file, with a summary on standard error; kRowsRefused when rows were
 *  refused and that is not fine. Throws Failure for files that cannot be read or written. */
ExitStatus RunBatch(Service& service, const MergeFiles& files, const MergeOptions& options,
                    Console& console);

}  // namespace linewright
