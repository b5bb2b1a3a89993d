#include "render/PdfForPress.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <sstream>
#include <string_view>
#include <vector>

namespace linewright {

namespace {

constexpr std::string_view kStream = "\nstream\n";
constexpr std::string_view kEndOfStream = "\nendstream";
constexpr std::string_view kLength = "/Length ";
/** How lists of widths begin, of simple fonts and of those with more than 256 characters. */
constexpr std::string_view kWidths[]{"/Widths [ ", "/W [0 [ "};
/** Our glyphs' widths are multiples of this in thousandths of the size: half of 1/128. */
constexpr double kWidthStep = 1000.0 / 256;

std::string Inflated(std::string_view packed) {
    std::string text;
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) return "";
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    std::array<char, 16384> piece;
    int result = Z_OK;
    while (result == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = piece.size();
        result = inflate(&stream, Z_NO_FLUSH);
        text.append(piece.data(), piece.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END ? text : "";
}

std::string Deflated(const std::string& text) {
    uLongf size = compressBound(static_cast<uLong>(text.size()));
    std::string packed(size, '\0');
    compress(reinterpret_cast<Bytef*>(packed.data()), &size,
             reinterpret_cast<const Bytef*>(text.data()), static_cast<uLong>(text.size()));
    packed.resize(size);
    return packed;
}

/** The content with "0.5 0.5 0.5 rg" as "0.5 g" and "RG" as "G"; Cairo begins a line with them. */
std::string GreyContent(const std::string& content) {
    std::string result;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line); result += line + '\n') {
        std::istringstream words(line);
        std::string red;
        std::string green;
        std::string blue;
        std::string operation;
        words >> red >> green >> blue >> operation;
        if (operation != "rg" && operation != "RG") continue;
        if (red != green || green != blue) continue;
        const std::size_t end = line.find(operation) + operation.size();
        line.replace(0, end, red + (operation == "rg" ? " g" : " G"));
    }
    return result;
}

/** The number that a text goes on with at a place. */
int NumberAt(const std::string& text, std::size_t place) {
    return std::atoi(text.c_str() + place);
}

/** Makes the content of a page grey; the new length goes to the object that holds it. */
void MakeContentGrey(std::string& object, std::map<int, std::size_t>& lengths) {
    const std::size_t start = object.find(kStream);
    const std::size_t end = object.rfind(kEndOfStream);
    if (start == std::string::npos || end == std::string::npos) return;
    const std::string_view head = std::string_view(object).substr(0, start);
    const std::size_t length = head.find(kLength);
    const bool isContent = length != head.npos && head.find("/FlateDecode") != head.npos &&
                           head.find("/Length1") == head.npos && head.find("/Subtype") == head.npos;
    if (!isContent) return;
    const std::size_t first = start + kStream.size();
    const std::string packed =
        Deflated(GreyContent(Inflated(std::string_view(object).substr(first, end - first))));
    lengths[NumberAt(object, length + kLength.size())] = packed.size();
    object.replace(first, end - first, packed);
}

std::string ExactWidth(double width) {
    const double exact = std::ceil(width / kWidthStep) * kWidthStep;
    if (exact - width >= 1) return std::to_string(std::lround(width));
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.8g", exact);
    return text.data();
}

void MakeWidthsExact(std::string& object) {
    const bool isOurs = object.find("+Linewright") != std::string::npos ||
                        object.find("+CairoFont") != std::string::npos;
    if (!isOurs) return;
    for (const std::string_view begin : kWidths) {
        const std::size_t widths = object.find(begin);
        if (widths == std::string::npos) continue;
        const std::size_t first = widths + begin.size();
        const std::size_t end = object.find(']', first);
        std::istringstream numbers(object.substr(first, end - first));
        std::string exact;
        for (double width = 0; numbers >> width;) exact += ExactWidth(width) + ' ';
        object.replace(first, end - first, exact);
    }
}

void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
        text.replace(at, from.size(), to);
        at += to.size();
    }
}

/** The objects of a file by their numbers, each from its number to "endobj". */
std::map<int, std::string> ObjectsOf(const std::string& pdf, std::size_t table) {
    std::vector<std::size_t> places{table};
    constexpr std::size_t kEntrySize = 20;
    const std::size_t count = static_cast<std::size_t>(NumberAt(pdf, table + 7));
    const std::size_t entries = pdf.find('\n', table + 5) + 1;
    for (std::size_t number = 1; number < count; ++number) {
        places.push_back(static_cast<std::size_t>(NumberAt(pdf, entries + number * kEntrySize)));
    }
    std::sort(places.begin(), places.end());
    std::map<int, std::string> objects;
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        objects[NumberAt(pdf, places[i])] = pdf.substr(places[i], places[i + 1] - places[i]);
    }
    return objects;
}

}  // namespace

std::string PdfForPress(const std::string& pdf) {
    const std::size_t last = pdf.rfind("startxref\n");
    if (last == std::string::npos) return pdf;
    const auto table = static_cast<std::size_t>(NumberAt(pdf, last + 10));
    std::map<int, std::string> objects = ObjectsOf(pdf, table);
    std::map<int, std::size_t> lengths;
    for (auto& [number, object] : objects) {
        MakeContentGrey(object, lengths);
        MakeWidthsExact(object);
        if (object.find(kStream) == std::string::npos) {
            ReplaceAll(object, "/DeviceRGB", "/DeviceGray");
        }
    }
    for (const auto& [number, length] : lengths) {
        objects[number] =
            std::to_string(number) + " 0 obj\n   " + std::to_string(length) + "\nendobj\n";
    }
    std::string result = pdf.substr(0, pdf.find('\n', pdf.find('\n') + 1) + 1);
    std::string entries = "0000000000 65535 f \n";
    for (const auto& [number, object] : objects) {
        std::array<char, 32> entry{};
        std::snprintf(entry.data(), entry.size(), "%010zu 00000 n \n", result.size());
        entries += entry.data();
        result += object;
    }
    const std::size_t trailer = pdf.find("trailer\n", table);
    const std::size_t newTable = result.size();
    result += "xref\n0 " + std::to_string(objects.size() + 1) + '\n' + entries;
    result += pdf.substr(trailer, last - trailer);
    return result + "startxref\n" + std::to_string(newTable) + "\n%%EOF\n";
}

}  // namespace linewright
