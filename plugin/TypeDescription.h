#pragma once

#include "PMString.h"

namespace linewright {

/** What the utility dialog says of a barcode type in the current locale: usage, data, sample and
 *  notes, each behind its label. Codes without a type have the labels alone; 17 to 19, which are
 *  not supported, have nothing. */
PMString DescribeType(uint16 code);

}  // namespace linewright
