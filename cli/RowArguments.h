#pragma once

#include <CLI/CLI.hpp>

#include "merge/Merge.h"

namespace linewright {

/** How the rows of a file are read. */
void AddColumns(CLI::App& command, RowOptions& rows);

/** What is written of them, and what becomes of those that are refused. */
void AddResults(CLI::App& command, MergeOptions& merge);

/** How the work on a file is divided, and gone on with. */
void AddScale(CLI::App& command, MergeOptions& merge);

}  // namespace linewright
