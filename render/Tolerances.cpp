#include "render/Tolerances.h"

#include <algorithm>
#include <cmath>

#include "render/Decimal.h"

namespace linewright {

namespace {

using Kind = DrawingWarning::Kind;

/** Sizes that differ by less are the same. */
constexpr double kSame = 1e-4;
constexpr double kUsualResolution = 600;
/** ISO/IEC 15417, 16388, 16390 and EN 798 for scanning by hand: 15 per cent of the length without
 *  quiet zones, and 5 mm. */
constexpr double kHeightOfLength = 0.15;
constexpr double kLeastHeight = 5 * kMillimetre;

double LeastHeightOf(const BarcodeType& type, const DrawnSizes& sizes) {
    if (type.symbology == Symbology::kEanUpc) {
        const Dimensions& row = type.dimensions;
        const double modules = row.barHeight > 0 ? row.barHeight : type.face->barHeight;
        return modules * sizes.xDimension;
    }
    return std::max(kLeastHeight, kHeightOfLength * sizes.length);
}

void AddXDimension(std::vector<DrawingWarning>& warnings, const BarcodeType& type, double x) {
    const Dimensions& row = type.dimensions;
    if (x > row.xLeast - kSame && x < row.xLargest + kSame) return;
    if (type.HasFixedHeight()) {
        const double pitch = x / row.modulesPerX * dimensions::kPostalModulesPerPitch;
        warnings.push_back({Kind::kPostalPitch,
                            {Decimal(kInch / pitch, 2), Decimal(dimensions::kLeastBarsPerInch, 0),
                             Decimal(dimensions::kMostBarsPerInch, 0)}});
        return;
    }
    warnings.push_back(
        {Kind::kXDimension,
         {Millimetres(x, 3), Millimetres(row.xLeast, 3), Millimetres(row.xLargest, 3)}});
}

}  // namespace

std::vector<DrawingWarning> WarningsOf(const BarcodeType& type, const DrawnSizes& sizes) {
    std::vector<DrawingWarning> warnings;
    AddXDimension(warnings, type, sizes.xDimension);
    const double left = sizes.standardQuietLeft;
    const double right = sizes.standardQuietRight;
    if (sizes.quietZone && *sizes.quietZone < std::max(left, right) - kSame) {
        const int perX = type.dimensions.modulesPerX;
        warnings.push_back({Kind::kQuietZone, {Decimal(left / perX, 2), Decimal(right / perX, 2)}});
    }
    const double leastHeight = LeastHeightOf(type, sizes);
    if (!type.HasFixedHeight() && sizes.barHeight < leastHeight - 0.01 * kMillimetre) {
        warnings.push_back(
            {Kind::kLowBars, {Millimetres(sizes.barHeight), Millimetres(leastHeight)}});
    }
    const double dots = sizes.reduction * kUsualResolution / kInch;
    constexpr double kWhole = 0.01;
    if (!sizes.hasResolution && std::abs(dots - std::round(dots)) > kWhole) {
        warnings.push_back({Kind::kReductionLost, {}});
    }
    return warnings;
}

std::string Millimetres(double points, int digits) {
    return Decimal(points / kMillimetre, digits);
}

}  // namespace linewright
