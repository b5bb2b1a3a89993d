#pragma once

#include <optional>

#include "render/BarcodeDrawing.h"
#include "requests/BarcodeOutcome.h"
#include "requests/DrawingFailure.h"
#include "requests/DrawingWish.h"

namespace linewright {

/** A barcode that was made and drawn. */
struct DrawnBarcode {
    BarcodeOutcome outcome;
    /** None where the outcome was a refusal. */
    std::optional<BarcodeDrawing> drawing{};
};

/** Makes and draws. Throws RequestFailure and DrawingFailure. */
DrawnBarcode DrawBarcode(Service& service, const BarcodeWish& wish, const DrawingWish& drawing);

}  // namespace linewright
