#include "cli/DrawCommand.h"

#include <fmt/format.h>

#include <memory>

#include "cli/DrawnFile.h"
#include "cli/ScannedBarcode.h"
#include "cli/VerdictWords.h"
#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "merge/OutputFile.h"
#include "text/Readable.h"

namespace linewright {

namespace {

constexpr double kUsualPixels = 4;

void PrintVerification(const Verification& verification, std::ostream& out) {
    out << VerdictWords(verification) << '\n';
    for (const Reading& reading : verification.readings) {
        const std::string found =
            reading.isFound ? fmt::format("{:9}  {}", reading.symbology, ShownData(reading))
                            : "reads nothing";
        out << fmt::format("  {:9}  {}\n", reading.scanner, found);
    }
}

/** At the pixels a module that a person's picture will have, or a usual number. */
Verification VerificationOf(const DrawnBarcode& drawn, const DrawOptions& options) {
    const bool isAsked = options.pixelsPerModule || options.drawing.dotsPerInch;
    const double pixels =
        isAsked ? PixelsPerModule(*drawn.drawing, options.pixelsPerModule) : kUsualPixels;
    return Verify(*drawn.drawing, drawn.outcome.meaning, pixels);
}

/** Says what was read; whether it is as it should be. */
bool IsVerified(const DrawnBarcode& drawn, const DrawOptions& options, std::ostream& out) {
    const Verification verification = VerificationOf(drawn, options);
    PrintVerification(verification, out);
    return !verification.IsBad();
}

void Write(const std::string& name, const std::string& content, Console& console) {
    if (name == "-") {
        console.out << content;
        return;
    }
    OutputFile file(name);
    file.Write(content);
    file.Keep();
}

}  // namespace

ExitStatus RunDraw(Service& service, const DrawOptions& options, Console& console) {
    const FileWish file = FileWishOf(options);
    if (!options.hasData) return RunDrawRows(service, options, file, console);
    Fonts fonts(host::PathFromUtf8(options.fonts));
    const BarcodeWish wish = WishOf(options.encode, console);
    const DrawnBarcode drawn = DrawOne(service, fonts, wish, options, console);
    if (!drawn.drawing) return kRefused;
    Write(options.output, ContentOf(drawn, wish, file.format, file.options), console);
    if (!options.isVerified) return kDone;
    std::ostream& report = options.output == "-" ? console.err : console.out;
    return IsVerified(drawn, options, report) ? kDone : kDoesNotScan;
}

ExitStatus RunVerify(Service& service, const DrawOptions& options, Console& console) {
    Fonts fonts(host::PathFromUtf8(options.fonts));
    const DrawnBarcode drawn =
        DrawOne(service, fonts, WishOf(options.encode, console), options, console);
    if (!drawn.drawing) return kRefused;
    return IsVerified(drawn, options, console.out) ? kDone : kDoesNotScan;
}

MakeScanned BarcodeScanner(Service& service, const std::string& fonts) {
    const auto runFonts = std::make_shared<Fonts>(host::PathFromUtf8(fonts));
    return [&service, runFonts](const BarcodeWish& wish) -> ScannedBarcode {
        DrawnBarcode drawn = DrawBarcode(service, *runFonts, wish, {.isTextWanted = false});
        if (!drawn.drawing) return {std::move(drawn.outcome), "", ""};
        const Verification verification = Verify(*drawn.drawing, drawn.outcome.meaning);
        return {std::move(drawn.outcome), VerdictWords(verification), verification.WhatWasRead()};
    };
}

}  // namespace linewright
