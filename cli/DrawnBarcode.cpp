#include "cli/DrawnBarcode.h"

#include <fmt/format.h>

#include "cli/Failure.h"
#include "cli/Length.h"
#include "cli/LoadedPreferences.h"
#include "cli/PlugInConversion.h"
#include "host/runtime/Paths.h"
#include "text/Readable.h"
#include "text/Utf8.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

EncoderSettings Settings() {
    const LinewrightPrefsRecord& record = LoadedPreferences();
    return {
        .code39CheckMode = record.code39CheckMode,
        .hasInterleaved2of5CheckDigit = record.i2of5CheckDigit != 0,
        .codabarStart = static_cast<char>(record.codabarStart & 0xFF),
        .codabarStop = static_cast<char>(record.codabarStop & 0xFF),
    };
}

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

Meaning MeaningOfRequest(const EncodeRequest& request, std::string_view typeName) {
    const std::string bytes = request.isUtf8 ? ConvertLikePlugIn(request.data).bytes : request.data;
    return MeaningOf({
        .typeName = typeName,
        .data = TrimLikePlugIn(bytes),
        .isCheckWanted = request.checkCharacter != 0,
        .settings = Settings(),
    });
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
    drawn.meaning = MeaningOfRequest(request, type->name);
    outcome.warnings.insert(outcome.warnings.end(), drawn.meaning.warnings.begin(),
                            drawn.meaning.warnings.end());
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
