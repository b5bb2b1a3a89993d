#pragma once

#include "PMString.h"
#include "core/DataBlock.h"
#include "imb/ImbEncode.h"

namespace linewright {

/** USPS Intelligent Mail: replaces the data, a tracking code of 20 digits and a routing code of 0,
 *  5, 9 or 11 in one run, by 65 letters "A", "D", "F" and "T", status 0. Otherwise the data becomes
 *
 *      "** Barcode Length Error **"   kBadLength      not 20 to 31 bytes
 *      "** Barcode Data Error **"     kInvalidData    something else than digits
 *      "** Barcode Process Error **"  kInternalError  the digits make no barcode
 *
 *  and stays as it is, with kBadLength, for a routing code of another length.
 *
 *  @param message        cleared, then told what is wrong: a translated key for the first two,
 * plain English for the rest; may be nullptr
 *  @param humanReadable  receives the digits once their number is right; may be nullptr */
int16 EncodeIntelligentMail(DataBlock data, PMString* message, PMString* humanReadable);

/** What the user is told of a result that is no success. */
const char* ImbErrorMessage(ImbResult result);

}  // namespace linewright
