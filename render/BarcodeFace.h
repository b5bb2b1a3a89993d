#pragma once

#include <span>
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

extern const BarcodeFace kBarsFace, kEanUpcFace, kPostalFace;
extern const BarcodeFace kClassicCode128Face, kClassicCode39Face, kClassicCodabarFace,
    kClassicEanUpcFace;
extern const BarcodeFace kClassicI2of5Face, kClassicMsiFace, kClassicPostnetFace;

/** All ten. */
std::span<const BarcodeFace* const> BarcodeFaces();

}  // namespace linewright
