#include "cli/DrawingArguments.h"

#include <CLI/CLI.hpp>
#include <string>

#include "cli/Length.h"

namespace linewright {

void AddDrawing(CLI::App& command, DrawingWish& wish) {
    const auto add = [&command](const char* name, auto& value, const char* kind, auto parse,
                                const char* help) {
        command
            .add_option_function<std::string>(
                name, [&value, name, parse](const std::string& text) { value = parse(text, name); },
                help)
            ->type_name(kind);
    };
    const auto length = [](const std::string& text, const char* name) {
        return LengthOf(text, name);
    };
    const auto lengthOrNone = [](const std::string& text, const char* name) {
        return LengthOf(text, name, true);
    };
    add("--x-dimension", wish.xDimension, "LENGTH", XDimensionOf,
        "Narrowest bar: 0.33mm, 10mil, 0.7pt");
    add("--height", wish.height, "LENGTH", length, "Bars: 15mm, or 50x of the narrowest bar");
    add("--quiet-zone", wish.quietZone, "LENGTH", lengthOrNone, "White on both sides");
    add("--bar-width-reduction", wish.barWidthReduction, "A", ReductionOf,
        "Narrower bars: by 10% of the narrowest, or 0.03mm");
}

void AddResolution(CLI::App& command, DrawOptions& draw) {
    command.add_option("--dpi", draw.dotsPerInch, "Resolution of a picture, or:")
        ->type_name("N")
        ->check(CLI::Range(1, 100000).description(""));
    command.add_option("--pixels-per-module", draw.pixelsPerModule, "The same by pixels")
        ->type_name("N")
        ->check(CLI::Range(1, 100).description(""));
}

void AddText(CLI::App& command, DrawingWish& wish) {
    command.add_flag(
        "--text,!--no-text", [&wish](std::int64_t count) { wish.isTextWanted = count > 0; },
        "The data below the bars, or not");
}

}  // namespace linewright
