#include "render/TypeDrawing.h"

#include <algorithm>

namespace linewright {

namespace {

/** 10 mil, a size that office printers manage. */
constexpr double kTenMil = 0.010 * kInch;
/** EAN and UPC at 100 % (GS1 General Specifications, 5.2.6). */
constexpr double kEan100 = 0.33 * kMillimetre;
/** At 11.5 points the postal fonts' bars have the standards' nominal sizes. */
constexpr int kPostalModulesPerX = 4;
constexpr double kPostalX = kPostalModulesPerX * 11.5 / 32;
constexpr double PostalModules(double inches) {
    return inches * kInch / (kPostalX / kPostalModulesPerX);
}

/** Quiet zones of ISO/IEC 15417, 16388, 16390 and EN 798; MSI has no standard, 12 is customary. */
constexpr TypeDrawing Linear(std::string_view name, const BarcodeFace& face, double quiet = 10) {
    return {.typeName = name,
            .face = &face,
            .xDimension = kTenMil,
            .quietLeft = quiet,
            .quietRight = quiet};
}

/** ISO/IEC 15420. */
constexpr TypeDrawing EanUpc(std::string_view name, const BarcodeFace& face, double left,
                             double right) {
    return {.typeName = name,
            .face = &face,
            .xDimension = kEan100,
            .quietLeft = left,
            .quietRight = right};
}

constexpr TypeDrawing Ean13(std::string_view name, const BarcodeFace& face) {
    TypeDrawing row = EanUpc(name, face, 11, 7);
    row.hasLargeFirstDigit = true;
    return row;
}

/** USPS-B-3200; Domestic Mail Manual 708.4. */
constexpr TypeDrawing Postal(std::string_view name, const BarcodeFace& face, double verticalInch) {
    return {.typeName = name,
            .face = &face,
            .xDimension = kPostalX,
            .modulesPerX = kPostalModulesPerX,
            .quietLeft = PostalModules(0.125),
            .quietRight = PostalModules(0.125),
            .quietVertical = PostalModules(verticalInch)};
}

constexpr TypeDrawing Text(std::string_view name) {
    return {.typeName = name,
            .face = nullptr,
            .xDimension = kTenMil,
            .quietLeft = 2,
            .quietRight = 2,
            .quietVertical = 2};
}

constexpr double kPostnetClear = 0.040;
constexpr double kIntelligentMailClear = 0.028;
constexpr double kMsiQuiet = 12;

constexpr TypeDrawing kRows[]{
    Postal("_BARCODE_POSTNET_", kClassicPostnetFace, kPostnetClear),
    Postal("_BARCODE_USPS_IM_", kPostalFace, kIntelligentMailClear),
    Linear("_BARCODE_CODABAR_", kClassicCodabarFace),
    Linear("_BARCODE_CODE128A_", kClassicCode128Face),
    Linear("_BARCODE_CODE128B_", kClassicCode128Face),
    Linear("_BARCODE_CODE128C_", kClassicCode128Face),
    Linear("_BARCODE_CODE39_", kClassicCode39Face),
    Linear("_BARCODE_CODE39ASCII_", kClassicCode39Face),
    Ean13("_BARCODE_EAN13_", kClassicEanUpcFace),
    Linear("_BARCODE_I2OF5_", kClassicI2of5Face),
    Text("_BARCODE_I2OF5TEXT_"),
    Ean13("_BARCODE_JAN13_", kClassicEanUpcFace),
    Linear("_BARCODE_MSIPLESSEY_", kClassicMsiFace, kMsiQuiet),
    EanUpc("_BARCODE_UPCA_", kClassicEanUpcFace, 9, 9),
    EanUpc("_BARCODE_UPCE_", kClassicEanUpcFace, 9, 7),
    Linear("_QVT_BARCODE_CODABAR_", kBarsFace),
    Linear("_QVT_BARCODE_CODE39_", kBarsFace),
    Linear("_QVT_BARCODE_CODE128_", kBarsFace),
    EanUpc("_BARCODE_EAN8_", kEanUpcFace, 7, 7),
    Ean13("_QVT_BARCODE_EAN13_", kEanUpcFace),
    Text("_QVT_BARCODE_I2OF5_TEXT_"),
    Linear("_QVT_BARCODE_I2OF5_", kBarsFace),
    Ean13("_QVT_BARCODE_JAN13_", kEanUpcFace),
    Linear("_QVT_BARCODE_MSI_", kBarsFace, kMsiQuiet),
    EanUpc("_QVT_BARCODE_UPCA_", kEanUpcFace, 9, 9),
    EanUpc("_QVT_BARCODE_UPCE_", kEanUpcFace, 9, 7),
    Postal("_QVT_BARCODE_POSTNET_", kPostalFace, kPostnetClear),
};

}  // namespace

const TypeDrawing* TypeDrawingOf(std::string_view typeName) {
    const auto row = std::find_if(std::begin(kRows), std::end(kRows), [&](const TypeDrawing& type) {
        return typeName.starts_with(type.typeName);
    });
    return row == std::end(kRows) ? nullptr : row;
}

std::span<const TypeDrawing> TypeDrawings() {
    return kRows;
}

}  // namespace linewright
