#pragma once

#include <string>

#include "merge/Merge.h"

namespace linewright {

/** What makes a barcode, draws it in memory with the fonts in the folder `fonts` and reads it back;
 *  for one run, in which the service is alive; see cli/DrawingModule.h for how to get there. */
MakeScanned BarcodeScanner(Service& service, const std::string& fonts);

}  // namespace linewright
