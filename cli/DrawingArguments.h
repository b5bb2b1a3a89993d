#pragma once

#include "cli/DrawCommand.h"

namespace CLI {
class App;
}

namespace linewright {

// The options of the commands that draw. What they write to outlives the command.

/** How bars are drawn. */
void AddDrawing(CLI::App& command, DrawingWish& wish);
/** The pixels of a picture. */
void AddResolution(CLI::App& command, DrawOptions& draw);
/** Whether there is text below the bars. */
void AddText(CLI::App& command, DrawingWish& wish);

}  // namespace linewright
