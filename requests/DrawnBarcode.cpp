#include "requests/DrawnBarcode.h"

#include "host/runtime/Paths.h"
#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

DrawingOptions OptionsOf(const DrawingWish& wish, const BarcodeType& type,
                         const BarcodeWish& barcode) {
    DrawingOptions options{.xDimension = wish.xDimension};
    const double x = wish.xDimension.value_or(type.dimensions.xDimension);
    if (wish.height) options.height = wish.height->Points(x);
    if (wish.quietZone) options.quietZone = wish.quietZone->Points(x);
    if (wish.barWidthReduction) {
        options.barWidthReduction = 100 * wish.barWidthReduction->Points(x) / x;
    }
    const bool isPrinted = type.face == nullptr || type.face->printsText;
    if (wish.isTextWanted.value_or(!isPrinted)) {
        options.text = Readable(barcode.isUtf8 ? barcode.data : Utf8FromLatin1(barcode.data));
    }
    return options;
}

}  // namespace

DrawnBarcode DrawBarcode(Service& service, const BarcodeWish& wish, const DrawingWish& drawing) {
    DrawnBarcode drawn{MakeBarcodeLeniently(service, wish)};
    if (!drawn.outcome.IsMade()) return drawn;
    const BarcodeType& type = *drawn.outcome.type;
    std::vector<Warning>& warnings = drawn.outcome.meaning.warnings;
    if (type.symbology == Symbology::kText) warnings.push_back({WarningReason::kNoBars});
    if (wish.isStrict && !warnings.empty()) {
        RefuseForWarnings(drawn.outcome);
        return drawn;
    }
    DrawingProblem problem;
    drawn.drawing =
        BarcodeDrawing::Make(host::PathFromUtf8(drawing.fonts), type, drawn.outcome.bytes,
                             OptionsOf(drawing, type, wish), problem);
    if (!drawn.drawing) throw DrawingFailure(problem);
    return drawn;
}

}  // namespace linewright
