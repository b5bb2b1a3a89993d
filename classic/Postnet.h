#pragma once

#include "core/DataBlock.h"

namespace linewright {

/** Postnet for the classic font: replaces the data by its digits and the check digit between two
 *  frame bars "/", status 0. Whatever is no digit is dropped. Unless 5, 9 or 11 digits remain of
 *  255 bytes at most, the data becomes "***Bad Zip Code***", status -1. */
int16 EncodePostnetClassic(DataBlock data);

}  // namespace linewright
