#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "meaning/Warning.h"
#include "types/BarcodeType.h"
#include "types/WrittenType.h"

namespace linewright {

/** A barcode that was made. */
struct EncodedBarcode {
    const BarcodeType& type;
    /** As it was sent; `isUtf8` says that its conversion was asked for. */
    std::string_view data;
    bool isUtf8 = true;
    /** Whether a check digit or character was asked for, where a type leaves it open. */
    bool isCheckWanted = false;
    Expectation expectation = Expectation::kNone;
    /** What came back. */
    std::string_view fontString;
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

/** What a barcode's data means by the symbologies' standards, and whether its bars say so. */
struct Meaning {
    ScannerTask task;
    /** What a scanner has to say: the characters in the symbol, check characters included. Of an
     *  EAN or UPC symbol the number with its check digit: 8 digits for EAN-8, 13 for all others,
     *  UPC-E in its long form. FNC1 between GS1 elements is GS (0x1D). Where the data leaves open
     *  what is carried (check digits by the preferences), it is what the bars say. */
    std::string carried;
    /** What a reader says that takes off modulo 43 and translates full ASCII; otherwise `carried`.
     */
    std::string translated;
    /** 2 or 5 digits, or none. */
    std::string addOn;
    /** Whether FNC1 in front says that the data is GS1's. */
    bool isGs1 = false;
    /** What the bars say, for people, in UTF-8: digits and characters in the form of `carried`, the
     *  add-on behind " +"; of Intelligent Mail its bars as letters. "" where they say nothing. */
    std::string barsSay;
    std::vector<Warning> warnings{};
};

/** Reads the bars out of the font string and sets them against the data. Asks no preferences: where
 *  these decide, every choice of theirs is taken as meant. */
Meaning MeaningOf(const EncodedBarcode& barcode);

}  // namespace linewright
