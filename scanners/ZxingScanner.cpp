// zxing-cpp's text() is UTF-8 with this.
#define ZX_USE_UTF8
#include <ZXing/ReadBarcode.h>

#include "scanners/EanUpcNumber.h"
#include "scanners/Reading.h"
#include "scanners/SpottedSymbol.h"

namespace linewright {

namespace {

using ZXing::BarcodeFormat;

ZXing::BarcodeFormats FormatsOf(Symbology symbology) {
    switch (symbology) {
        case Symbology::kCode128: return BarcodeFormat::Code128;
        case Symbology::kCode39: return BarcodeFormat::Code39;
        case Symbology::kCodabar: return BarcodeFormat::Codabar;
        case Symbology::kInterleaved2of5: return BarcodeFormat::ITF;
        case Symbology::kEanUpc:
            return BarcodeFormat::EAN13 | BarcodeFormat::EAN8 | BarcodeFormat::UPCA |
                   BarcodeFormat::UPCE;
        default: return BarcodeFormat::None;
    }
}

ZXing::DecodeHints HintsOf(const ScannerTask& task) {
    return ZXing::DecodeHints()
        .setFormats(FormatsOf(task.symbology))
        .setTryHarder(true)
        .setTryRotate(false)
        .setTryDownscale(false)
        .setBinarizer(ZXing::Binarizer::FixedThreshold)
        .setReturnCodabarStartEnd(true)
        .setTryCode39ExtendedMode(task.isFullAscii)
        .setValidateCode39CheckSum(task.isFullAscii && task.hasModulo43)
        .setEanAddOnSymbol(task.hasAddOn ? ZXing::EanAddOnSymbol::Require
                                         : ZXing::EanAddOnSymbol::Ignore);
}

ZXing::ImageView ViewOf(const GreyRaster& picture) {
    return {picture.pixels.data(), picture.width, picture.height, ZXing::ImageFormat::Lum};
}

Symbology SymbologyOf(BarcodeFormat format) {
    switch (format) {
        case BarcodeFormat::Code128: return Symbology::kCode128;
        case BarcodeFormat::Code39: return Symbology::kCode39;
        case BarcodeFormat::Codabar: return Symbology::kCodabar;
        case BarcodeFormat::ITF: return Symbology::kInterleaved2of5;
        default: return Symbology::kEanUpc;
    }
}

Reading ReadingOf(const ZXing::Result& result, bool isTranslated) {
    Reading reading;
    reading.scanner = "ZXing-C++";
    if (!result.isValid()) return reading;
    reading.isFound = true;
    reading.symbology = ToString(result.format());
    reading.data = result.bytes().asString();
    reading.said = reading.data;
    reading.isGs1 = result.symbologyIdentifier() == "]C1";
    reading.isTranslated = isTranslated;
    if (SymbologyOf(result.format()) == Symbology::kEanUpc) {
        const std::size_t space = reading.data.find(' ');
        if (space != std::string::npos) reading.addOn = reading.data.substr(space + 1);
        reading.said = reading.data.substr(0, space);
        reading.data = EanUpcNumber(reading.said, result.format() == BarcodeFormat::UPCE);
    }
    return reading;
}

}  // namespace

Reading ReadWithZxing(const GreyRaster& picture, const ScannerTask& task) {
    if (!HasScanner(task.symbology) || picture.pixels.empty()) return ReadingOf({}, false);
    return ReadingOf(ZXing::ReadBarcode(ViewOf(picture), HintsOf(task)), task.isFullAscii);
}

std::optional<SpottedSymbol> SpotWithZxing(const GreyRaster& picture, bool isLocal) {
    const auto hints =
        ZXing::DecodeHints()
            .setFormats(BarcodeFormat::Code128 | BarcodeFormat::Code39 | BarcodeFormat::Codabar |
                        BarcodeFormat::ITF | FormatsOf(Symbology::kEanUpc))
            .setTryHarder(true)
            .setTryRotate(false)
            .setTryDownscale(false)
            .setBinarizer(isLocal ? ZXing::Binarizer::LocalAverage
                                  : ZXing::Binarizer::FixedThreshold)
            .setReturnCodabarStartEnd(true)
            .setEanAddOnSymbol(ZXing::EanAddOnSymbol::Ignore);
    const ZXing::Result result = ZXing::ReadBarcode(ViewOf(picture), hints);
    if (!result.isValid()) return std::nullopt;
    SpottedSymbol spotted;
    spotted.reading = ReadingOf(result, false);
    spotted.symbology = SymbologyOf(result.format());
    for (const ZXing::PointI point : result.position()) spotted.Include(point.x, point.y);
    return spotted;
}

}  // namespace linewright
