#pragma once

#include <string>

#include "render/Export.h"
#include "requests/DrawnBarcode.h"

namespace linewright {

/** A barcode that was drawn as the content of a file, with its data and a title in it. Throws
 *  DrawingFailure. */
std::string ContentOf(const DrawnBarcode& drawn, const BarcodeWish& wish, FileFormat format,
                      ExportOptions options);

}  // namespace linewright
