#pragma once

#include "PMString.h"
#include "core/DataBlock.h"
#include "core/PString.h"

namespace linewright {

/**
 * Makes every barcode: resolves the type name, converts and trims the data, has the encoder of the
 * type replace it, and reports a failure to the user if asked to. Main thread only.
 *
 * @param data            the caller's block, replaced by the font string or an error text
 * @param typeName        a name of the registry; characters behind it are ignored
 * @param length          length of the data, in and out
 * @param options         low 8 bits non-zero: the data is UTF-8
 * @param recognised      set to 1 when the name is known, never cleared; may be nullptr
 * @param checkCharacter  non-zero: append the optional check character of the symbology
 * @param ratio           wide-to-narrow ratio; 3.0, 2.5 and 2.0 are known
 * @param showAlerts      non-zero: report failures, if the preferences allow it
 * @param hint            receives what is wrong with refused data; may be nullptr
 * @param humanReadable   receives the text under the bars; may be nullptr
 * @return the status. Without data or a length reference, or with a length but no block, it is
 *         kInternalError and nothing is touched; so it is when memory runs out, and the caller
 *         keeps the data, at most converted and trimmed. An unknown name is kEncoded, the data
 *         trimmed if there is memory for it.
 */
int16 EncodeBarcodeData(uint8** data, const PString& typeName, uint32* length, uint64 options,
                        uint16* recognised, uint16 checkCharacter, double ratio, uint16 showAlerts,
                        PMString* hint, PMString* humanReadable);

/** The answer for a type code without an encoder: "NOT SUPPORTED" and -1. */
int16 EncodeNotSupported(DataBlock data);

}  // namespace linewright
