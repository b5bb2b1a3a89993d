#include "render/BarcodeFace.h"

namespace linewright {

const BarcodeFace kBarsFace{"Linewright Bars", "LinewrightBars", 32, 32};
const BarcodeFace kEanUpcFace{"Linewright EAN UPC", "LinewrightEANUPC", 128, 69.25, true};
const BarcodeFace kPostalFace{"Linewright Postal", "LinewrightPostal", 32, 29};
const BarcodeFace kClassicCode128Face{"Linewright Classic Code 128", "LinewrightClassicCode128", 32,
                                      32};
const BarcodeFace kClassicCode39Face{"Linewright Classic Code 39", "LinewrightClassicCode39", 32,
                                     32};
const BarcodeFace kClassicCodabarFace{"Linewright Classic Codabar", "LinewrightClassicCodabar", 32,
                                      32};
const BarcodeFace kClassicEanUpcFace{"Linewright Classic EAN UPC", "LinewrightClassicEANUPC", 128,
                                     69.25, true};
const BarcodeFace kClassicI2of5Face{"Linewright Classic I2of5", "LinewrightClassicI2of5", 32, 32};
const BarcodeFace kClassicMsiFace{"Linewright Classic MSI", "LinewrightClassicMSI", 32, 32};
const BarcodeFace kClassicPostnetFace{"Linewright Classic Postnet", "LinewrightClassicPostnet", 32,
                                      25};

std::span<const BarcodeFace* const> BarcodeFaces() {
    static constexpr const BarcodeFace* kAll[]{
        &kBarsFace,          &kEanUpcFace,         &kPostalFace,        &kClassicCode128Face,
        &kClassicCode39Face, &kClassicCodabarFace, &kClassicEanUpcFace, &kClassicI2of5Face,
        &kClassicMsiFace,    &kClassicPostnetFace,
    };
    return kAll;
}

}  // namespace linewright
