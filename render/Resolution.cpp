#include "render/Resolution.h"

#include <algorithm>
#include <cmath>

namespace linewright {

double StretchOf(const BarcodeType& type, bool hasHalfModules) {
    if (type.HasFixedHeight()) return dimensions::kPostalModulesPerPitch;
    return hasHalfModules ? 0.5 : 1;
}

DotModule NearestDotModule(const BarcodeType& type, double stretch, double module,
                           double dotsPerInch) {
    constexpr double kTolerance = 1e-6;
    const double dotsOfPoint = dotsPerInch / kInch;
    const auto dotsOfX = [&](double x) {
        return x / type.dimensions.modulesPerX * stretch * dotsOfPoint;
    };
    const double least = std::ceil(dotsOfX(type.dimensions.xLeast) - kTolerance);
    const double most = std::floor(dotsOfX(type.dimensions.xLargest) + kTolerance);
    double dots = std::max(1.0, std::round(module * stretch * dotsOfPoint));
    if (least <= most) dots = std::clamp(dots, std::max(1.0, least), std::max(1.0, most));
    return {static_cast<int>(dots), dots / dotsOfPoint / stretch};
}

}  // namespace linewright
