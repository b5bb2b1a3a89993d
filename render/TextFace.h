#pragma once

#include <cairo/cairo.h>

#include <string>

namespace linewright {

// The face for text that a barcode font does not print: the system's monospaced one.

/** Sets the face for a context, `size` in its units. */
void SelectTextFace(cairo_t* context, double size, bool isBold = false);

/** The width of UTF-8 text at a size. */
double TextWidth(const std::string& text, double size);

/** The text or, where it is wider than `width`, as much of it as fits with "…" behind. */
std::string FittedText(const std::string& text, double size, double width);

}  // namespace linewright
