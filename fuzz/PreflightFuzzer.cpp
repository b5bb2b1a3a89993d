#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>

#include "imb/ImbDecode.h"
#include "merge/Failure.h"
#include "preflight/BarGroups.h"
#include "preflight/LineScan.h"
#include "preflight/PictureDocument.h"
#include "preflight/PopplerText.h"
#include "preflight/SymbolReader.h"

// What a check reads of a document: the texts of other programs, pictures, bars.

namespace {

using namespace linewright;

void ReadShapes(FuzzedDataProvider& input) {
    const std::string svg = input.ConsumeRemainingBytesAsString();
    try {
        const VectorPage page = ReadSvg(svg, {});
        for (const bool isTurned : {false, true}) {
            for (const BarGroup& group : FindBarGroups(page, isTurned)) {
                SeenPart(page, group, isTurned);
                PictureOf(page, group, isTurned, isTurned);
            }
            ScanStretches(page.Along(10, 0, 200, isTurned), 20, 100);
        }
    } catch (const Failure&) {
        return;
    }
}

void ReadTexts(FuzzedDataProvider& input) {
    const std::string text = input.ConsumeRemainingBytesAsString();
    GreyRaster grey;
    GreyRaster red;
    ReadPpm(text, grey, red);
    ReadPdfInfo(text);
    ReadPlacedTexts(text, 210);
    PngResolution(text);
    ImbDecode(text);
}

void ReadPicture(FuzzedDataProvider& input) {
    GreyRaster picture;
    picture.width = input.ConsumeIntegralInRange(1, 300);
    picture.height = input.ConsumeIntegralInRange(1, 60);
    // Rows that repeat are what bars look like.
    const int alike = input.ConsumeIntegralInRange(1, 40);
    const double pixelsPerMillimetre = input.ConsumeFloatingPointInRange(1.0, 100.0);
    const bool isTurned = input.ConsumeBool();
    const auto count = static_cast<std::size_t>(picture.width);
    for (int y = 0; y < picture.height; ++y) {
        if (y % alike != 0) {
            const std::vector<std::uint8_t> last(picture.pixels.end() - picture.width,
                                                 picture.pixels.end());
            picture.pixels.insert(picture.pixels.end(), last.begin(), last.end());
            continue;
        }
        std::vector<std::uint8_t> row = input.ConsumeBytes<std::uint8_t>(count);
        row.resize(count, 255);
        picture.pixels.insert(picture.pixels.end(), row.begin(), row.end());
    }
    ReadSymbols(picture, pixelsPerMillimetre, isTurned);
}

void FindPatterns(FuzzedDataProvider& input) {
    const auto symbology = static_cast<Symbology>(input.ConsumeIntegralInRange(0, 8));
    const auto form = static_cast<EanUpcForm>(input.ConsumeIntegralInRange(0, 2));
    const auto length = input.ConsumeIntegralInRange<std::size_t>(0, 100);
    std::vector<double> widths;
    while (input.remaining_bytes() > 0)
        widths.push_back(input.ConsumeIntegral<std::uint8_t>() / 8.0);
    FindPattern({.symbology = symbology, .form = form, .length = length}, widths, 0, widths.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider input(bytes, size);
    switch (input.ConsumeIntegralInRange(0, 3)) {
        case 0: ReadShapes(input); break;
        case 1: ReadTexts(input); break;
        case 2: ReadPicture(input); break;
        default: FindPatterns(input); break;
    }
    return 0;
}
