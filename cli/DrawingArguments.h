#pragma once

#include "cli/DrawCommand.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the library's
class App;
class Validator;
}  // namespace CLI

namespace linewright {

// The options of the commands that draw. What they write to outlives the command.

/** For options that name a file to write. */
CLI::Validator NamesAFile();
/** The width of the narrowest bar. */
void AddXDimension(CLI::App& command, DrawingWish& wish);
/** How bars are drawn. */
void AddDrawing(CLI::App& command, DrawingWish& wish);
/** The dots that bars end on, and the pixels of a picture. */
void AddResolution(CLI::App& command, DrawOptions& draw);
/** What file is written. */
void AddFile(CLI::App& command, DrawOptions& draw);
/** What stands around the bars. */
void AddSurroundings(CLI::App& command, DrawingWish& wish);
/** Whether there is text below the bars. */
void AddText(CLI::App& command, DrawingWish& wish);

}  // namespace linewright
