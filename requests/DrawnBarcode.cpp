#include "requests/DrawnBarcode.h"

#include "requests/PrintedText.h"

namespace linewright {

namespace {

DrawingOptions OptionsOf(const DrawingWish& wish, const BarcodeOutcome& outcome,
                         const BarcodeWish& barcode) {
    const BarcodeType& type = *outcome.type;
    DrawingOptions options{.xDimension = wish.xDimension,
                           .dotsPerInch = wish.dotsPerInch,
                           .isFitted = wish.isFitted,
                           .hasBearerBars = wish.hasBearerBars,
                           .hasMarginMarks = wish.hasMarginMarks};
    const double x = wish.xDimension.value_or(type.dimensions.xDimension);
    if (wish.height) options.height = wish.height->Points(x);
    if (wish.quietZone) options.quietZone = wish.quietZone->Points(x);
    if (wish.barWidthReduction) {
        options.barWidthReduction = 100 * wish.barWidthReduction->Points(x) / x;
    }
    const bool isPrinted = type.face == nullptr || type.face->printsText;
    if (wish.isTextWanted.value_or(!isPrinted)) options.text = PrintedText(outcome, barcode);
    return options;
}

}  // namespace

DrawnBarcode DrawBarcode(Service& service, Fonts& fonts, const BarcodeWish& wish,
                         const DrawingWish& drawing) {
    DrawnBarcode drawn{MakeBarcodeLeniently(service, wish)};
    if (!drawn.outcome.IsMade()) return drawn;
    std::vector<Warning>& warnings = drawn.outcome.meaning.warnings;
    if (drawn.outcome.type->symbology == Symbology::kText) {
        warnings.push_back({WarningReason::kNoBars});
    }
    drawn.drawing = BarcodeDrawing::Make(fonts, *drawn.outcome.type, drawn.outcome.bytes,
                                         OptionsOf(drawing, drawn.outcome, wish));
    drawn.warnings = drawn.drawing->Warnings();
    if (wish.isStrict && !(warnings.empty() && drawn.warnings.empty())) {
        drawn.drawing.reset();
        RefuseForWarnings(drawn.outcome);
    }
    return drawn;
}

}  // namespace linewright
