#pragma once

#include <string>
#include <vector>

#include "meaning/Meaning.h"
#include "render/BarcodeDrawing.h"
#include "scanners/Reading.h"

namespace linewright {

enum class Verdict { kScans, kScansAs, kDoesNotScan, kNoScanner };

/** What the scanners made of a drawing. */
struct Verification {
    Verdict verdict = Verdict::kNoScanner;
    /** One for each scanner that knows the symbology. */
    std::vector<Reading> readings;

    /** The first reading of something else than is meant; nullptr where there is none. */
    const Reading* Other() const;
    /** What the scanners read, one text where they agree; "" where none read anything. UTF-8. */
    std::string WhatWasRead() const;
    /** Whether scanners know the symbology, and do not say what is meant. */
    bool IsBad() const { return verdict == Verdict::kScansAs || verdict == Verdict::kDoesNotScan; }
};

/** Whether a reading is exactly what is meant. */
bool IsMeant(const Reading& reading, const Meaning& meaning);

/** The characters of a reading for people: with its add-on, and control characters as pictures. */
std::string ShownData(const Reading& reading);

/** Draws in memory and reads with both scanners. It scans when one of them reads what is meant and
 *  none reads anything else. `pixelsPerModule` as for BarcodeDrawing::Raster. */
Verification Verify(const BarcodeDrawing& drawing, const Meaning& meaning,
                    double pixelsPerModule = 4);

}  // namespace linewright
