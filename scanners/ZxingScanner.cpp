// zxing-cpp's text() is UTF-8 with this.
#define ZX_USE_UTF8
#include <ZXing/ReadBarcode.h>

#include "scanners/EanUpcNumber.h"
#include "scanners/Reading.h"

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

}  // namespace

Reading ReadWithZxing(const GreyRaster& picture, const ScannerTask& task) {
    Reading reading;
    reading.scanner = "ZXing-C++";
    if (!HasScanner(task.symbology) || picture.pixels.empty()) return reading;
    const ZXing::ImageView view(picture.pixels.data(), picture.width, picture.height,
                                ZXing::ImageFormat::Lum);
    const ZXing::Result result = ZXing::ReadBarcode(view, HintsOf(task));
    if (!result.isValid()) return reading;
    reading.isFound = true;
    reading.symbology = ToString(result.format());
    reading.data = result.bytes().asString();
    reading.said = reading.data;
    reading.isGs1 = result.symbologyIdentifier() == "]C1";
    reading.isTranslated = task.isFullAscii;
    if (task.symbology == Symbology::kEanUpc) {
        const std::size_t space = reading.data.find(' ');
        if (space != std::string::npos) reading.addOn = reading.data.substr(space + 1);
        reading.said = reading.data.substr(0, space);
        reading.data = EanUpcNumber(reading.said, result.format() == BarcodeFormat::UPCE);
    }
    return reading;
}

}  // namespace linewright
