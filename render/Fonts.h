#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <utility>

#include "render/BarcodeFont.h"
#include "render/TextFace.h"

namespace linewright {

/** The fonts of a run, each read when it is first needed. Throws a DrawingFailure where one cannot
 *  be had. */
class Fonts {
  public:
    /** `folder` holds the barcode fonts' files. */
    explicit Fonts(std::filesystem::path fontFolder) : folder(std::move(fontFolder)) {}

    std::shared_ptr<const BarcodeFont> Barcode(const BarcodeFace& face, double heightPercent) {
        auto& font = barcodes[{&face, heightPercent}];
        if (!font) font = std::make_shared<const BarcodeFont>(folder, face, heightPercent);
        return font;
    }

    std::shared_ptr<const TextFace> Text(bool isBold = false) {
        auto& face = texts[isBold];
        if (!face) face = std::make_shared<const TextFace>(isBold);
        return face;
    }

  private:
    std::filesystem::path folder;
    std::map<std::pair<const BarcodeFace*, double>, std::shared_ptr<const BarcodeFont>> barcodes;
    std::map<bool, std::shared_ptr<const TextFace>> texts;
};

}  // namespace linewright
