#pragma once

#include <optional>
#include <string>

#include "render/BarcodeDrawing.h"

namespace linewright {

// A drawing as the content of a file, at its size in points. Everything black is pure black of one
// ink: DeviceGray in PDF, setgray in EPS.

/** Bars and text in embedded fonts, unless the drawing asks for paths. */
std::string PdfOf(const BarcodeDrawing& drawing);
std::string EpsOf(const BarcodeDrawing& drawing);
/** Bars and text as paths. */
std::string SvgOf(const BarcodeDrawing& drawing);
/** 8-bit grey with its resolution in the file. Asks the same of `pixelsPerModule` as Raster. */
std::string PngOf(const BarcodeDrawing& drawing, int pixelsPerModule);

/** The pixels that a module has at a resolution; most often no whole number. */
double PixelsPerModule(const BarcodeDrawing& drawing, double dotsPerInch);
/** The whole number of pixels a module, even where there are half modules, that is nearest to a
 *  resolution: 300 dpi is the usual one of pictures. */
int WholePixelsPerModule(const BarcodeDrawing& drawing, double dotsPerInch = 300);
/** The resolution at which a module has so many pixels. */
double DotsPerInch(const BarcodeDrawing& drawing, int pixelsPerModule);

}  // namespace linewright
