#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "scanners/Verification.h"
#include "text/FontText.h"
#include "types/BarcodeTypes.h"

// Reads labels on pictures of pages (binary PGM, 8 bits) with both scanners, one label after the
// other, each cut out of its page.
// Usage: read_labels LIST.tsv
// Each line of the list is a label: type name, data in hexadecimal, font string as text, picture,
// and left, top, width and height in pixels. A line comes out for each that is not read as its data
// by both scanners, or whose bars are not as many as the font string's where no scanner knows it.
// Exit status 0 when there is none.

namespace {

using namespace linewright;

GreyRaster ReadPgm(const std::string& name) {
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

GreyRaster Cut(const GreyRaster& page, const std::array<int, 4>& box) {
    const auto [left, top, width, height] = box;
    GreyRaster part;
    part.width = std::min(width, page.width - left);
    part.height = std::min(height, page.height - top);
    if (part.width <= 0 || part.height <= 0) return {};
    for (int y = 0; y < part.height; ++y) {
        for (int x = 0; x < part.width; ++x) {
            part.pixels.push_back(static_cast<std::uint8_t>(page.At(left + x, top + y)));
        }
    }
    return part;
}

/** Dark stretches of the row that has the most of them. */
int BarsIn(const GreyRaster& picture) {
    int most = 0;
    for (int y = 0; y < picture.height; ++y) {
        int bars = 0;
        for (int x = 1; x < picture.width; ++x) {
            if (picture.At(x - 1, y) >= 128 && picture.At(x, y) < 128) ++bars;
        }
        most = std::max(most, bars);
    }
    return most;
}

/** How many bars the font string of a type without scanner draws. */
int BarsOf(const BarcodeType& type, std::string_view fontString) {
    if (type.symbology == Symbology::kMsi) return static_cast<int>(fontString.size());
    const auto isPair = [](char letter) { return letter >= 'j' && letter <= 'm'; };
    return static_cast<int>(fontString.size()) +
           static_cast<int>(std::count_if(fontString.begin(), fontString.end(), isPair));
}

std::string BytesOf(const std::string& digits) {
    std::string bytes;
    for (std::size_t place = 0; place + 1 < digits.size(); place += 2) {
        bytes += static_cast<char>(std::stoi(digits.substr(place, 2), nullptr, 16));
    }
    return bytes;
}

/** What is wrong with a label; "" for nothing. */
std::string Problem(const BarcodeType& type, const std::string& data, const std::string& text,
                    const GreyRaster& picture) {
    const std::string fontString = FontStringFromText(text).value_or("");
    if (!HasScanner(type.symbology)) {
        const int bars = BarsOf(type, fontString);
        const int found = BarsIn(picture);
        if (found == bars) return "";
        return std::to_string(found) + " bars, not " + std::to_string(bars);
    }
    const Meaning meaning = MeaningOf({.type = type, .data = data, .fontString = fontString});
    std::string problem;
    for (const Reading& reading :
         {ReadWithZxing(picture, meaning.task), ReadWithZbar(picture, meaning.task)}) {
        if (IsMeant(reading, meaning)) continue;
        problem += std::string(reading.scanner) + ": " +
                   (reading.isFound ? ShownData(reading) : "reads nothing") + "; ";
    }
    return problem;
}

}  // namespace

int main(int count, char** values) {
    std::ifstream list(count == 2 ? values[1] : "");
    if (!list) {
        std::cerr << "usage: read_labels LIST.tsv\n";
        return 2;
    }
    std::string pictureName;
    GreyRaster page;
    int wrong = 0;
    for (std::string line; std::getline(list, line);) {
        std::vector<std::string> cells;
        std::istringstream stream(line);
        for (std::string cell; std::getline(stream, cell, '\t');) cells.push_back(cell);
        const BarcodeType* const type = cells.size() == 8 ? FindTypeByPrefix(cells[0]) : nullptr;
        if (type == nullptr) {
            std::cerr << "read_labels: no label: " << line << '\n';
            return 2;
        }
        if (cells[3] != pictureName) {
            pictureName = cells[3];
            page = ReadPgm(pictureName);
        }
        const std::array<int, 4> box{std::stoi(cells[4]), std::stoi(cells[5]), std::stoi(cells[6]),
                                     std::stoi(cells[7])};
        const std::string problem = Problem(*type, BytesOf(cells[1]), cells[2], Cut(page, box));
        if (problem.empty()) continue;
        ++wrong;
        std::cout << type->shortName << ", " << pictureName << " at " << box[0] << ", " << box[1]
                  << ": " << problem << '\n';
    }
    return wrong == 0 ? 0 : 1;
}
