#pragma once

#include <array>
#include <string_view>

namespace linewright {

/** One of the barcode fonts, as docs/fonts.md describes them. */
struct BarcodeFace {
    std::string_view family;
    /** The file's name without ".ttf"; the variable form is "variable/<this>-Variable.ttf". */
    std::string_view fileStem;
    int modulesPerEm;
    /** The height of the bars that carry data, in modules; of postal fonts the highest bar's. */
    double barHeight;
    /** Whether the font draws human-readable digits itself. */
    bool printsText = false;
};

inline constexpr BarcodeFace kBarsFace{"Linewright Bars", "LinewrightBars", 32, 32};
inline constexpr BarcodeFace kEanUpcFace{"Linewright EAN UPC", "LinewrightEANUPC", 128, 69.25,
                                         true};
inline constexpr BarcodeFace kPostalFace{"Linewright Postal", "LinewrightPostal", 32, 29};
inline constexpr BarcodeFace kClassicCode128Face{"Linewright Classic Code 128",
                                                 "LinewrightClassicCode128", 32, 32};
inline constexpr BarcodeFace kClassicCode39Face{"Linewright Classic Code 39",
                                                "LinewrightClassicCode39", 32, 32};
inline constexpr BarcodeFace kClassicCodabarFace{"Linewright Classic Codabar",
                                                 "LinewrightClassicCodabar", 32, 32};
inline constexpr BarcodeFace kClassicEanUpcFace{"Linewright Classic EAN UPC",
                                                "LinewrightClassicEANUPC", 128, 69.25, true};
inline constexpr BarcodeFace kClassicI2of5Face{"Linewright Classic I2of5", "LinewrightClassicI2of5",
                                               32, 32};
inline constexpr BarcodeFace kClassicMsiFace{"Linewright Classic MSI", "LinewrightClassicMSI", 32,
                                             32};
inline constexpr BarcodeFace kClassicPostnetFace{"Linewright Classic Postnet",
                                                 "LinewrightClassicPostnet", 32, 25};

inline constexpr std::array kBarcodeFaces{
    &kBarsFace,          &kEanUpcFace,         &kPostalFace,        &kClassicCode128Face,
    &kClassicCode39Face, &kClassicCodabarFace, &kClassicEanUpcFace, &kClassicI2of5Face,
    &kClassicMsiFace,    &kClassicPostnetFace,
};

}  // namespace linewright
