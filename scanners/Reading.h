#pragma once

#include <string>
#include <string_view>

#include "meaning/Meaning.h"
#include "render/GreyRaster.h"

namespace linewright {

/** What one scanner read from a picture. */
struct Reading {
    std::string_view scanner;
    bool isFound = false;
    /** The scanner's own name of what it found, "EAN-13". */
    std::string symbology;
    /** The characters, in the forms that Meaning describes. */
    std::string data;
    std::string addOn;
    /** The main symbol's characters as the scanner gives them, UPC-A with 12 digits. */
    std::string said;
    bool isGs1 = false;
    /** Whether the scanner translated full ASCII itself. */
    bool isTranslated = false;
    /** Whether it is exactly what the data means; Verify says so. */
    bool isMeant = false;
};

// The scanners. Both look for the symbology of the task alone and never see what is expected.

Reading ReadWithZxing(const GreyRaster& picture, const ScannerTask& task);

/** How ZBar looks at a picture. */
struct ZbarView {
    /** ZBar judges bars by the slope of their sides, which takes more than a pixel: this shows it
     *  the picture with every pixel twice as wide and high. */
    bool isEnlarged = false;
    /** Reads every eighth row: enough where they are known to be alike. */
    bool skipsRows = false;
};
Reading ReadWithZbar(const GreyRaster& picture, const ScannerTask& task, ZbarView view = {});

}  // namespace linewright
