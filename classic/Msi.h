#pragma once

#include "core/DataBlock.h"
#include "core/PString.h"

namespace linewright {

/** The status of a modulo-11 check that would be 10, which no digit can show. */
constexpr int16 kNoMsiMod11Check = -4;

/** MSI Plessey for the classic font: replaces the data by "<", the digits, up to two check digits
 *  and ">", status 0. Each check is 1 for modulo 10, 2 for modulo 11, else none; the second one
 *  covers the first. Data of more than 250 bytes becomes "***Bad MSI Plessey Bar Code, Data Too
 *  Long***", status -1; data that a check refuses becomes "***Bad MSI Plessey***", status -1, or
 *  "***Invalid MSI Plessey Mod 11 Data***", status -4. Without a check any bytes pass. */
int16 EncodeMsiClassic(DataBlock data, int16 firstCheck, int16 secondCheck);

// Service: no caller of our own. The check digits, as characters. 0, or `check` left alone: -1 at
// what is no digit, and as said below.

/** Doubles every second digit from the rightmost one on as one number; -1 also when that number
 *  needs more than nine digits. */
int16 MsiMod10(const PString& digits, char& check);
/** Weights 2 to 7 from the right, over and over; kNoMsiMod11Check when the check would be 10. */
int16 MsiMod11(const PString& digits, char& check);

}  // namespace linewright
