#include "scanners/Verification.h"

#include <algorithm>

#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

bool IsOther(const Reading& reading) {
    return reading.isFound && !reading.isMeant;
}

}  // namespace

bool IsMeant(const Reading& reading, const Meaning& meaning) {
    return reading.isFound &&
           reading.data == (reading.isTranslated ? meaning.translated : meaning.carried) &&
           reading.addOn == meaning.addOn && reading.isGs1 == meaning.isGs1;
}

std::string ShownData(const Reading& reading) {
    const std::string text = Readable(Utf8FromLatin1(reading.said));
    return reading.addOn.empty() ? text : text + " +" + reading.addOn;
}

const Reading* Verification::Other() const {
    const auto other = std::find_if(readings.begin(), readings.end(), IsOther);
    return other == readings.end() ? nullptr : &*other;
}

std::string Verification::WhatWasRead() const {
    std::string text;
    for (const Reading& reading : readings) {
        if (!reading.isFound) continue;
        const std::string shown = ShownData(reading);
        if (text.empty()) {
            text = shown;
        } else if (text != shown) {
            text += "; " + std::string(reading.scanner) + ": " + shown;
        }
    }
    return text;
}

Verification Verify(const BarcodeDrawing& drawing, const Meaning& meaning, double pixelsPerModule) {
    if (!HasScanner(meaning.task.symbology)) return {};
    const GreyRaster picture = drawing.Raster(pixelsPerModule);
    Verification result;
    result.readings.push_back(ReadWithZxing(picture, meaning.task));
    result.readings.push_back(ReadWithZbar(
        picture, meaning.task, {.isEnlarged = pixelsPerModule == 1, .skipsRows = true}));
    for (Reading& reading : result.readings) reading.isMeant = IsMeant(reading, meaning);
    const auto has = [&](auto test) {
        return std::any_of(result.readings.begin(), result.readings.end(), test);
    };
    if (has(IsOther)) {
        result.verdict = Verdict::kScansAs;
    } else if (has([](const Reading& reading) { return reading.isMeant; })) {
        result.verdict = Verdict::kScans;
    } else {
        result.verdict = Verdict::kDoesNotScan;
    }
    return result;
}

}  // namespace linewright
