#pragma once

#include "merge/MergeFile.h"

namespace linewright {

/** Throws Failure where a merge cannot write what it is to write: into one file twice, or, where it
 *  is to go on later, into standard output or the input. */
void RequireOutputs(const MergeFiles& files, const MergeOptions& options);

}  // namespace linewright
