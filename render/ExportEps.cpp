#include <cmath>

#include "render/Decimal.h"
#include "render/Export.h"
#include "render/PageContent.h"

namespace linewright {

namespace {

/** A string of PostScript's: bytes that are no printable ASCII by their octal numbers. */
std::string Quoted(const std::string& text) {
    std::string quoted = "(";
    for (const char byte : text) {
        const auto number = static_cast<unsigned char>(byte);
        if (byte == '(' || byte == ')' || byte == '\\') {
            quoted += std::string("\\") + byte;
        } else if (number >= 32 && number < 127) {
            quoted += byte;
        } else {
            quoted += '\\';
            for (const int shift : {6, 3, 0})
                quoted += static_cast<char>('0' + (number >> shift & 7));
        }
    }
    return quoted + ')';
}

std::string Inks(const Ink& ink) {
    std::string numbers;
    for (const double part : ink.cmyk) numbers += Decimal(part, 4) + ' ';
    switch (ink.kind) {
        case Ink::Kind::kBlack: return "0 setgray\n";
        case Ink::Kind::kCmyk: return numbers + "setcmykcolor\n";
        case Ink::Kind::kSpot: break;
    }
    // How much of black stands in for it where there is no such ink.
    return "[/Separation " + Quoted(ink.name) +
           " /DeviceCMYK {0 exch 0 exch 0 exch}] setcolorspace 1 setcolor\n";
}

}  // namespace

std::string EpsOf(const BarcodeDrawing& drawing, const ExportOptions& options) {
    const Shapes shapes = drawing.Drawn();
    const double width = shapes.width * shapes.unit;
    const double height = shapes.height * shapes.unit;
    std::string file = "%!PS-Adobe-3.0 EPSF-3.0\n";
    file += "%%BoundingBox: 0 0 " + Decimal(std::ceil(width), 0) + ' ' +
            Decimal(std::ceil(height), 0) + '\n';
    file += "%%HiResBoundingBox: 0 0 " + Decimal(width, 5) + ' ' + Decimal(height, 5) + '\n';
    file += "%%Creator: Linewright\n";
    file += "%%Title: " + Quoted(options.title) + '\n';
    if (options.ink.kind == Ink::Kind::kSpot) {
        file += "%%DocumentCustomColors: " + Quoted(options.ink.name) + '\n';
    }
    file += "%%LanguageLevel: 2\n%%Pages: 1\n%%EndComments\n%%BeginProlog\n20 dict begin\n";
    file += kPageOperators;
    file += "%%EndProlog\n%%Page: 1 1\ngsave\ntrue setoverprint\n";
    file += Inks(options.ink) + PageContent(shapes);
    return file + "grestore\nend\nshowpage\n%%Trailer\n%%EOF\n";
}

}  // namespace linewright
