#include "cli/DrawnBarcode.h"

#include <fmt/format.h>

#include "cli/Failure.h"
#include "cli/Length.h"
#include "cli/WarningWords.h"
#include "host/runtime/Paths.h"
#include "text/Readable.h"
#include "text/Utf8.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

double ReductionOf(const std::string& text, double xDimension) {
    if (!text.ends_with('%'))
        return 100 * LengthOf(text, "--bar-width-reduction", xDimension, true) / xDimension;
    // Per cent are hundredths of the narrowest bar.
    const std::string number = text.substr(0, text.size() - 1) + "x";
    return LengthOf(number, "--bar-width-reduction", 1, true);
}

DrawingOptions OptionsOf(const DrawingWish& wish, const BarcodeType& type,
                         const EncodeRequest& request) {
    DrawingOptions options;
    double x = type.dimensions.xDimension;
    if (wish.xDimension) options.xDimension = x = LengthOf(*wish.xDimension, "--x-dimension", x);
    if (wish.height) options.height = LengthOf(*wish.height, "--height", x);
    if (wish.quietZone) options.quietZone = LengthOf(*wish.quietZone, "--quiet-zone", x, true);
    if (wish.barWidthReduction) {
        options.barWidthReduction = ReductionOf(*wish.barWidthReduction, x);
    }
    const bool isPrinted = type.face == nullptr || type.face->printsText;
    if (wish.isTextWanted.value_or(!isPrinted)) {
        options.text = Readable(request.isUtf8 ? request.data : Utf8FromLatin1(request.data));
    }
    return options;
}

}  // namespace

DrawnBarcode DrawBarcode(Service& service, const EncodeRequest& request, bool isStrict,
                         const DrawingWish& wish) {
    DrawnBarcode drawn;
    drawn.outcome = MakeBarcode(service, request, isStrict);
    BarcodeOutcome& outcome = drawn.outcome;
    if (!outcome.isMade) return drawn;
    const BarcodeType* const type = FindTypeByPrefix(outcome.typeName);
    if (type == nullptr) {
        throw Failure(fmt::format("{} has no font of ours", Readable(outcome.typeName)));
    }
    drawn.meaning = outcome.meaning;
    if (type->symbology == Symbology::kText) {
        outcome.warnings.push_back(Sentence({WarningReason::kNoBars}));
    }
    if (isStrict && !outcome.warnings.empty()) {
        outcome.isMade = false;
        outcome.status.reset();
        outcome.message = "a warning, and --strict is on";
        return drawn;
    }
    std::string problem;
    drawn.drawing = BarcodeDrawing::Make(host::PathFromUtf8(wish.fonts), *type, outcome.bytes,
                                         OptionsOf(wish, *type, request), problem);
    if (!drawn.drawing) throw Failure(problem);
    return drawn;
}

std::string VerdictWords(const Verification& verification) {
    switch (verification.verdict) {
        case Verdict::kScans: return "scans";
        case Verdict::kDoesNotScan: return "does not scan";
        case Verdict::kNoScanner: return "no scanner for this symbology";
        case Verdict::kScansAs: break;
    }
    const Reading* const other = verification.Other();
    return "scans as " + (other == nullptr ? std::string() : ShownData(*other));
}

std::string WhatWasRead(const Verification& verification) {
    std::string text;
    for (const Reading& reading : verification.readings) {
        if (!reading.isFound) continue;
        const std::string shown = ShownData(reading);
        if (text.empty()) {
            text = shown;
        } else if (text != shown) {
            text += fmt::format("; {}: {}", reading.scanner, shown);
        }
    }
    return text;
}

}  // namespace linewright
