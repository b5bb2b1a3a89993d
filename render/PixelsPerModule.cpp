#include <algorithm>
#include <cmath>

#include "render/Export.h"

namespace linewright {

double PixelsPerModule(const BarcodeDrawing& drawing, std::optional<double> askedFor) {
    const int step = drawing.HasHalfModules() ? 2 : 1;
    if (askedFor) {
        if (std::fmod(*askedFor, step) == 0) return *askedFor;
        throw DrawingFailure(DrawingProblem::Reason::kOddPixels);
    }
    if (drawing.DotsPerInch()) return drawing.Module() / kInch * *drawing.DotsPerInch();
    constexpr double kUsualResolution = 300;
    const double steps = drawing.Module() / kInch * kUsualResolution / step;
    return step * std::max(1.0, std::round(steps));
}

double DotsPerInch(const BarcodeDrawing& drawing, double pixelsPerModule) {
    return pixelsPerModule / drawing.Module() * kInch;
}

}  // namespace linewright
