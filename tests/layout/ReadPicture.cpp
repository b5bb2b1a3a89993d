#include <fstream>
#include <iostream>
#include <iterator>

#include "scanners/Verification.h"
#include "text/FontText.h"
#include "types/BarcodeTypes.h"

// Reads a picture (binary PGM, 8 bits) of one barcode with both scanners.
// Usage: read_picture TYPE-NAME DATA FONT-STRING PICTURE.pgm
// Prints what each scanner reads; exit status 0 when both read what the data means.

namespace {

using namespace linewright;

GreyRaster ReadPgm(const char* name) {
    std::ifstream file(name, std::ios::binary);
    std::string magic;
    GreyRaster picture;
    int most = 0;
    file >> magic >> picture.width >> picture.height >> most;
    file.get();
    picture.pixels.assign(std::istreambuf_iterator<char>(file), {});
    const auto size =
        static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    if (magic != "P5" || most != 255 || picture.pixels.size() != size) return {};
    return picture;
}

}  // namespace

int main(int count, char** values) {
    if (count != 5) {
        std::cerr << "usage: read_picture TYPE-NAME DATA FONT-STRING PICTURE.pgm\n";
        return 2;
    }
    const BarcodeType* const type = FindTypeByPrefix(values[1]);
    if (type == nullptr) {
        std::cerr << "read_picture: no such type: " << values[1] << '\n';
        return 2;
    }
    const std::string fontString = FontStringFromText(values[3]).value_or("");
    const Meaning meaning = MeaningOf({.type = *type, .data = values[2], .fontString = fontString});
    const GreyRaster picture = ReadPgm(values[4]);
    bool isMeant = true;
    for (const Reading& reading :
         {ReadWithZxing(picture, meaning.task), ReadWithZbar(picture, meaning.task)}) {
        isMeant = isMeant && IsMeant(reading, meaning);
        std::cout << reading.scanner << ": "
                  << (reading.isFound ? ShownData(reading) : "reads nothing") << '\n';
    }
    return isMeant ? 0 : 1;
}
