#include <zbar.h>

#include <memory>

#include "scanners/EanUpcNumber.h"
#include "scanners/Reading.h"

namespace linewright {

namespace {

/** Rows of a picture of which eighths are still enough for ZBar to be sure. */
constexpr int kLeastToSkip = 64;

using Scanner =
    std::unique_ptr<zbar::zbar_image_scanner_t, decltype(&zbar::zbar_image_scanner_destroy)>;
using Image = std::unique_ptr<zbar::zbar_image_t, decltype(&zbar::zbar_image_destroy)>;

void Enable(zbar::zbar_image_scanner_t* scanner, zbar::zbar_symbol_type_t type) {
    zbar::zbar_image_scanner_set_config(scanner, type, zbar::ZBAR_CFG_ENABLE, 1);
}

/** Without a shortest length short Interleaved 2 of 5 and Codabar are taken for noise. */
void AllowLength(zbar::zbar_image_scanner_t* scanner, zbar::zbar_symbol_type_t type, int least) {
    zbar::zbar_image_scanner_set_config(scanner, type, zbar::ZBAR_CFG_MIN_LEN, least);
    zbar::zbar_image_scanner_set_config(scanner, type, zbar::ZBAR_CFG_MAX_LEN, 0);
}

Scanner ScannerFor(const ScannerTask& task, int rowDistance) {
    Scanner scanner(zbar::zbar_image_scanner_create(), zbar::zbar_image_scanner_destroy);
    zbar::zbar_image_scanner_set_config(scanner.get(), zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
    // A barcode is read along its rows.
    zbar::zbar_image_scanner_set_config(scanner.get(), zbar::ZBAR_NONE, zbar::ZBAR_CFG_X_DENSITY,
                                        0);
    zbar::zbar_image_scanner_set_config(scanner.get(), zbar::ZBAR_NONE, zbar::ZBAR_CFG_Y_DENSITY,
                                        rowDistance);
    switch (task.symbology) {
        case Symbology::kCode128: Enable(scanner.get(), zbar::ZBAR_CODE128); break;
        case Symbology::kCode39:
            Enable(scanner.get(), zbar::ZBAR_CODE39);
            AllowLength(scanner.get(), zbar::ZBAR_CODE39, 1);
            break;
        case Symbology::kCodabar:
            Enable(scanner.get(), zbar::ZBAR_CODABAR);
            AllowLength(scanner.get(), zbar::ZBAR_CODABAR, 1);
            break;
        case Symbology::kInterleaved2of5:
            Enable(scanner.get(), zbar::ZBAR_I25);
            AllowLength(scanner.get(), zbar::ZBAR_I25, 2);
            break;
        case Symbology::kEanUpc:
            for (const auto type :
                 {zbar::ZBAR_EAN13, zbar::ZBAR_EAN8, zbar::ZBAR_UPCA, zbar::ZBAR_UPCE}) {
                Enable(scanner.get(), type);
            }
            if (task.hasAddOn) {
                Enable(scanner.get(), zbar::ZBAR_EAN2);
                Enable(scanner.get(), zbar::ZBAR_EAN5);
            }
            break;
        default: break;
    }
    return scanner;
}

GreyRaster Enlarged(const GreyRaster& picture) {
    GreyRaster large{.width = 2 * picture.width, .height = 2 * picture.height, .pixels = {}};
    large.pixels.reserve(4 * picture.pixels.size());
    for (int y = 0; y < large.height; ++y) {
        for (int x = 0; x < large.width; ++x) large.pixels.push_back(picture.At(x / 2, y / 2));
    }
    return large;
}

void Take(const zbar::zbar_symbol_t* symbol, Reading& reading) {
    const zbar::zbar_symbol_type_t type = zbar::zbar_symbol_get_type(symbol);
    const std::string data(zbar::zbar_symbol_get_data(symbol),
                           zbar::zbar_symbol_get_data_length(symbol));
    if (type == zbar::ZBAR_EAN2 || type == zbar::ZBAR_EAN5) {
        reading.addOn = data;
        return;
    }
    reading.isFound = true;
    reading.said = data;
    reading.symbology = zbar::zbar_get_symbol_name(type);
    const bool isEanUpc = type == zbar::ZBAR_EAN13 || type == zbar::ZBAR_EAN8 ||
                          type == zbar::ZBAR_UPCA || type == zbar::ZBAR_UPCE;
    reading.data = isEanUpc ? EanUpcNumber(data, type == zbar::ZBAR_UPCE) : data;
    reading.isGs1 = (zbar::zbar_symbol_get_modifiers(symbol) & 1U << zbar::ZBAR_MOD_GS1) != 0;
}

/** A symbol and, where it is made of several, its parts. */
void TakeAll(const zbar::zbar_symbol_t* symbol, Reading& reading) {
    if (zbar::zbar_symbol_get_type(symbol) != zbar::ZBAR_COMPOSITE) {
        Take(symbol, reading);
        return;
    }
    const zbar::zbar_symbol_set_t* const parts = zbar::zbar_symbol_get_components(symbol);
    for (const zbar::zbar_symbol_t* part = zbar::zbar_symbol_set_first_symbol(parts);
         part != nullptr; part = zbar::zbar_symbol_next(part)) {
        Take(part, reading);
    }
}

}  // namespace

Reading ReadWithZbar(const GreyRaster& picture, const ScannerTask& task, ZbarView view) {
    Reading reading;
    reading.scanner = "ZBar";
    if (!HasScanner(task.symbology) || picture.pixels.empty()) return reading;
    const GreyRaster shown = view.isEnlarged ? Enlarged(picture) : picture;
    const Scanner scanner =
        ScannerFor(task, view.skipsRows && shown.height >= kLeastToSkip ? 8 : 1);
    const Image image(zbar::zbar_image_create(), zbar::zbar_image_destroy);
    constexpr unsigned long kGrey = 'Y' | '8' << 8 | '0' << 16 | '0' << 24;
    zbar::zbar_image_set_format(image.get(), kGrey);
    zbar::zbar_image_set_size(image.get(), static_cast<unsigned>(shown.width),
                              static_cast<unsigned>(shown.height));
    zbar::zbar_image_set_data(image.get(), shown.pixels.data(), shown.pixels.size(), nullptr);
    zbar::zbar_scan_image(scanner.get(), image.get());
    for (const zbar::zbar_symbol_t* symbol = zbar::zbar_image_first_symbol(image.get());
         symbol != nullptr; symbol = zbar::zbar_symbol_next(symbol)) {
        TakeAll(symbol, reading);
    }
    return reading;
}

}  // namespace linewright
