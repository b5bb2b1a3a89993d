#pragma once

#include <string>

#include "render/Export.h"
#include "render/Shapes.h"

namespace linewright {

/** Shapes as filled paths in the operators of a PDF page, whose origin is the lower left corner. */
std::string PageContent(const Shapes& shapes);

/** The same operators defined for PostScript. */
extern const char* const kPageOperators;

}  // namespace linewright
