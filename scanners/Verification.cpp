#include "scanners/Verification.h"

#include <algorithm>

namespace linewright {

namespace {

bool IsOther(const Reading& reading) {
    return reading.isFound && !reading.isMeant;
}

/** Bytes 0 to 31 and 127 as the pictures of Unicode, above that as Latin-1. */
void AppendShown(std::string& text, unsigned char byte) {
    if (byte < 32) {
        text += "\xE2\x90";
        text += static_cast<char>(0x80 + byte);
    } else if (byte == 127) {
        text += "\xE2\x90\xA1";
    } else if (byte < 128) {
        text += static_cast<char>(byte);
    } else {
        text += static_cast<char>(0xC0 | byte >> 6);
        text += static_cast<char>(0x80 | (byte & 0x3F));
    }
}

}  // namespace

bool IsMeant(const Reading& reading, const Meaning& meaning) {
    return reading.isFound &&
           reading.data == (reading.isTranslated ? meaning.translated : meaning.carried) &&
           reading.addOn == meaning.addOn && reading.isGs1 == meaning.isGs1;
}

std::string ShownData(const Reading& reading) {
    std::string text;
    for (const char byte : reading.said) AppendShown(text, static_cast<unsigned char>(byte));
    return reading.addOn.empty() ? text : text + " +" + reading.addOn;
}

std::string Verification::Words() const {
    switch (verdict) {
        case Verdict::kScans: return "scans";
        case Verdict::kDoesNotScan: return "does not scan";
        case Verdict::kNoScanner: return "no scanner for this symbology";
        case Verdict::kScansAs: break;
    }
    const auto other = std::find_if(readings.begin(), readings.end(), IsOther);
    return "scans as " + (other == readings.end() ? std::string() : ShownData(*other));
}

Verification Verify(const BarcodeDrawing& drawing, const Meaning& meaning, int pixelsPerModule) {
    if (!HasScanner(meaning.task.symbology)) return {};
    const GreyRaster picture = drawing.Raster(pixelsPerModule);
    Verification result;
    result.readings.push_back(ReadWithZxing(picture, meaning.task));
    result.readings.push_back(ReadWithZbar(picture, meaning.task, pixelsPerModule == 1));
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
