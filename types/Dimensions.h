#pragma once

namespace linewright {

/** Lengths are in points of 1/72 inch. */
constexpr double kMillimetre = 72 / 25.4;
constexpr double kInch = 72;

/** How wide a type's bars and their surroundings are where nobody says otherwise. */
struct Dimensions {
    /** The narrowest bar's width, in points, and the least and largest it should have. */
    double xDimension;
    double xLeast;
    double xLargest;
    /** The modules that the narrowest bar is wide. */
    int modulesPerX = 1;
    /** White beside the outermost bars, and above and below them, in modules. */
    double quietLeft;
    double quietRight;
    double quietVertical = 0;
    /** The bars' height in modules where the font's is not the standard's; else 0. */
    double barHeight = 0;
};

namespace dimensions {

// Widths of the narrowest bar. Code 128, Code 39, Codabar and Interleaved 2 of 5 leave theirs to
// the application; common equipment prints and reads 0.17 mm to 1.02 mm, and office printers manage
// 10 mil. EAN and UPC have 0.33 mm at 100 %, 80 to 200 % (ISO/IEC 15420).

/** ISO/IEC 15417, 16388, 16390 and EN 798; MSI has no standard, 12 modules of white are usual. */
constexpr Dimensions Linear(double quiet = 10) {
    return {.xDimension = 0.010 * kInch,
            .xLeast = 0.17 * kMillimetre,
            .xLargest = 1.02 * kMillimetre,
            .quietLeft = quiet,
            .quietRight = quiet};
}
constexpr double kMsiQuiet = 12;

/** ISO/IEC 15420. */
constexpr Dimensions Retail(double left, double right, double barHeight = 0) {
    return {.xDimension = 0.33 * kMillimetre,
            .xLeast = 0.264 * kMillimetre,
            .xLargest = 0.66 * kMillimetre,
            .quietLeft = left,
            .quietRight = right,
            .barHeight = barHeight};
}
constexpr double kEan8BarHeight = 18.23 / 0.33;

/** At 11.5 points the postal fonts' bars have the standards' nominal sizes: a bar is four modules
 *  wide and repeats after nine, which makes 20 to 24 bars an inch at the limits. */
constexpr int kPostalModulesPerX = 4;
constexpr int kPostalModulesPerPitch = 9;
constexpr double kPostalX = kPostalModulesPerX * 11.5 / 32;
constexpr double kLeastBarsPerInch = 20;
constexpr double kMostBarsPerInch = 24;
constexpr double PostalXAt(double barsPerInch) {
    return kInch / barsPerInch * kPostalModulesPerX / kPostalModulesPerPitch;
}
constexpr double PostalModules(double inches) {
    return inches * kInch / (kPostalX / kPostalModulesPerX);
}
/** USPS-B-3200; Domestic Mail Manual 708.4. */
constexpr Dimensions Postal(double clearInches) {
    return {.xDimension = kPostalX,
            .xLeast = PostalXAt(kMostBarsPerInch),
            .xLargest = PostalXAt(kLeastBarsPerInch),
            .modulesPerX = kPostalModulesPerX,
            .quietLeft = PostalModules(0.125),
            .quietRight = PostalModules(0.125),
            .quietVertical = PostalModules(clearInches)};
}
constexpr double kPostnetClear = 0.040;
constexpr double kIntelligentMailClear = 0.028;

/** Digits below an Interleaved 2 of 5. */
constexpr Dimensions Text() {
    Dimensions row = Linear(2);
    row.quietVertical = 2;
    return row;
}

}  // namespace dimensions

}  // namespace linewright
