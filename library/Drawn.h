#pragma once

#include "library/Opened.h"

namespace linewright {

// What draws and what reads; in a build without these each comes back with LINEWRIGHT_LEFT_OUT.

linewright_status Draw(Opened& opened, linewright_text type, linewright_text data,
                       std::string_view format, const linewright_options& options,
                       const linewright_barcode*& barcode);

linewright_status ReadBack(Opened& opened, linewright_text type, linewright_text data,
                           const linewright_options& options, const linewright_barcode*& barcode);

}  // namespace linewright
