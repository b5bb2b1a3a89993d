#pragma once

#include "meaning/Meaning.h"

namespace linewright {

/** Whether a barcode is as nearly all are: its data printable ASCII of the type's full length, and
 *  its bars saying just that. Then MeaningOf has no warning about it. False says nothing but that
 *  only MeaningOf knows. Neither allocates nor throws. */
bool IsPlain(const EncodedBarcode& barcode);

}  // namespace linewright
