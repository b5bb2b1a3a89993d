#include "cli/DrawingArguments.h"

#include <CLI/CLI.hpp>
#include <string>

#include "cli/Length.h"

namespace linewright {

namespace {

void AddParsed(CLI::App& command, const char* name, auto& value, const char* kind, auto parse,
               const char* help) {
    command
        .add_option_function<std::string>(
            name, [&value, name, parse](const std::string& text) { value = parse(text, name); },
            help)
        ->type_name(kind);
}

}  // namespace

CLI::Validator NamesAFile() {
    return {[](const std::string& text) { return text.empty() ? "names no file" : std::string(); },
            ""};
}

void AddXDimension(CLI::App& command, DrawingWish& wish) {
    AddParsed(command, "--x-dimension", wish.xDimension, "LENGTH", XDimensionOf,
              "Narrowest bar: 0.33mm, 10mil, 0.7pt");
}

void AddDrawing(CLI::App& command, DrawingWish& wish) {
    const auto add = [&command](const char* name, auto& value, const char* kind, auto parse,
                                const char* help) {
        AddParsed(command, name, value, kind, parse, help);
    };
    const auto length = [](const std::string& text, const char* name) {
        return LengthOf(text, name);
    };
    const auto lengthOrNone = [](const std::string& text, const char* name) {
        return LengthOf(text, name, true);
    };
    AddXDimension(command, wish);
    add("--height", wish.height, "LENGTH", length, "Bars: 15mm, or 50x of the narrowest bar");
    add("--quiet-zone", wish.quietZone, "LENGTH", lengthOrNone, "White on both sides");
    add("--bar-width-reduction", wish.barWidthReduction, "A", ReductionOf,
        "Narrower bars: by 10% of the narrowest, or 0.03mm");
}

void AddResolution(CLI::App& command, DrawOptions& draw) {
    command
        .add_option("--dpi", draw.drawing.dotsPerInch, "Bars end on the dots of this resolution")
        ->type_name("N")
        ->check(CLI::Range(1, 100000).description(""));
    command.add_flag("--fit", draw.drawing.isFitted, "Take the nearest X-dimension of whole dots");
    command.add_option("--pixels-per-module", draw.pixelsPerModule, "Of a picture, without --dpi")
        ->type_name("N")
        ->check(CLI::Range(1, 1000).description(""));
}

void AddFile(CLI::App& command, DrawOptions& draw) {
    command
        .add_option("-o,--output", draw.output,
                    ".pdf, .eps, .svg, .png or .tiff; - for standard output")
        ->check(NamesAFile())
        ->type_name("F")
        ->required();
    command.add_option("--format", draw.format, "In place of the name's ending")
        ->type_name("pdf, eps, svg, png, tiff")
        ->check(CLI::IsMember({"pdf", "eps", "svg", "png", "tiff"}).description(""));
    command.add_option("--ink", draw.ink, "black, cmyk:C,M,Y,K in per cent, or a spot colour")
        ->type_name("INK");
    command.add_flag("--grey", draw.isGrey, "Pictures of 8 bits a pixel, with smooth text");
}

void AddSurroundings(CLI::App& command, DrawingWish& wish) {
    command.add_flag("--bearer", wish.hasBearerBars, "Bearer bars around i2of5");
    command.add_flag("--margin-marks", wish.hasMarginMarks, "< and > beside EAN");
}

void AddText(CLI::App& command, DrawingWish& wish) {
    command.add_flag(
        "--text,!--no-text", [&wish](std::int64_t count) { wish.isTextWanted = count > 0; },
        "The data below the bars, or not");
}

}  // namespace linewright
