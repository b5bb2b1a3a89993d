#pragma once

#include "core/DataBlock.h"

namespace linewright {

/** Codabar (EN 798) for the classic font: replaces the data by start character, data and stop
 *  character, status 0. There is no check character. Data with anything else than digits and
 * "-$:/.+" becomes "***Bad Codabar***", data of more than 250 bytes "***Codabar Data Too Long***",
 * both with status -1. */
int16 EncodeCodabarClassic(DataBlock data, char start, char stop);

}  // namespace linewright
