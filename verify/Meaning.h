#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "types/BarcodeType.h"

namespace linewright {

/** The preferences that change what the classic types carry; the plug-in's defaults. */
struct EncoderSettings {
    /** 0 none, 1 a digit of modulo 10, else a character of modulo 43. */
    int code39CheckMode = 2;
    bool hasInterleaved2of5CheckDigit = true;
    char codabarStart = 'A';
    char codabarStop = 'D';
};

/** What was encoded. */
struct EncodedData {
    std::string_view typeName;
    /** The bytes that the encoder gets: converted from UTF-8, without spaces at the ends. */
    std::string_view data;
    bool isCheckWanted = false;
    EncoderSettings settings;
};

/** How a scanner has to be set for a symbol, as a person who buys one does. */
struct ScannerTask {
    Symbology symbology = Symbology::kText;
    bool hasAddOn = false;
    /** Code 39 of which pairs of characters stand for ASCII. */
    bool isFullAscii = false;
    /** A last character of modulo 43 that a reader takes off when it translates full ASCII. */
    bool hasModulo43 = false;
};

/** What the data means by the symbologies' standards: what a scanner has to say. Worked out from
 * the data alone, without any encoder. */
struct Meaning {
    ScannerTask task;
    /** The characters in the symbol, check characters included. Of an EAN or UPC symbol the number
     *  with its check digit: 8 digits for EAN-8, 13 for all others, UPC-E in its long form. FNC1
     *  between GS1 elements is GS (0x1D). */
    std::string carried;
    /** What a reader says that takes off modulo 43 and translates full ASCII; otherwise `carried`.
     */
    std::string translated;
    /** 2 or 5 digits, or none. */
    std::string addOn;
    /** Whether FNC1 in front says that the data is GS1's. */
    bool isGs1 = false;
    /** Sentences on rules of the encoders by which the symbol does not say what the data means. */
    std::vector<std::string> warnings;
};

Meaning MeaningOf(const EncodedData& encoded);

}  // namespace linewright
