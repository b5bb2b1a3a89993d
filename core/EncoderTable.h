#pragma once

#include <array>

#include "PMString.h"
#include "core/DataBlock.h"

namespace linewright {

/** What an encoder is given: the data it replaces by its result, the options of the call, and where
 *  the caller wants a hint and the human-readable text (or nullptr). */
struct EncoderArguments {
    DataBlock data;
    uint16 checkCharacter;
    double ratio;
    PMString* hint;
    PMString* humanReadable;
};

/** Encodes one symbology; the low 16 bits of the result are the status. */
using Encoder = int32 (*)(const EncoderArguments& arguments);

/** Encoders by type code, 1 to 30; nullptr where there is none. */
using EncoderTable = std::array<Encoder, 31>;

/** The table that EncodeBarcodeData uses. */
extern constinit const EncoderTable* encoders;

}  // namespace linewright
