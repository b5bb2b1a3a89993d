#pragma once

#include <optional>
#include <vector>

#include "render/BarcodeDrawing.h"
#include "requests/BarcodeOutcome.h"
#include "requests/DrawingWish.h"

namespace linewright {

/** A barcode that was made and drawn. */
struct DrawnBarcode {
    BarcodeOutcome outcome;
    /** None where the outcome was a refusal. */
    std::optional<BarcodeDrawing> drawing{};
    /** About the drawing, also where they were refused. */
    std::vector<DrawingWarning> warnings{};
};

/** Makes and draws; a strict wish has warnings about the drawing refused too. Throws RequestFailure
 *  and DrawingFailure. */
DrawnBarcode DrawBarcode(Service& service, Fonts& fonts, const BarcodeWish& wish,
                         const DrawingWish& drawing);

}  // namespace linewright
