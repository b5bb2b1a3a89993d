#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "render/Export.h"
#include "tests/TestHost.h"
#include "tests/render/Drawn.h"

namespace linewright {

namespace {

using Reason = DrawingProblem::Reason;
using Strings = std::vector<std::string>;

constexpr std::string_view kCode39 = "_QVT_BARCODE_CODE39_";
constexpr std::string_view kEan13 = "_QVT_BARCODE_EAN13_";
const std::string kEan13String = "Y(0A63IB*NNNTNL(";
/** Start, "A" and stop at ratio 2 and 2.5. */
const std::string kCode39String = "BAEEAEABAEBAEEA";
const std::string kHalfString = "XWYYWYWXWYXWYYW";

/** Dark and light stretches of a row, the light one on the left first. */
std::vector<int> RunsAt(const GreyRaster& picture, int y) {
    std::vector<int> runs;
    bool isDark = false;
    for (int x = 0; x < picture.width;) {
        const int start = x;
        while (x < picture.width && (picture.At(x, y) < 128) == isDark) ++x;
        runs.push_back(x - start);
        isDark = !isDark;
    }
    return runs;
}

bool IsPureBlackAndWhite(const GreyRaster& picture) {
    return std::all_of(picture.pixels.begin(), picture.pixels.end(),
                       [](int grey) { return grey == 0 || grey == 255; });
}

/** Why something cannot be had. */
template <typename Wish>
DrawingProblem ProblemOf(const Wish& wish) {
    try {
        wish();
    } catch (const DrawingFailure& failure) {
        return failure.problem;
    }
    ADD_FAILURE() << "nothing is refused";
    return {};
}

DrawingProblem ProblemWith(std::string_view type, const std::string& fontString,
                           const DrawingOptions& options) {
    return ProblemOf([&] { Drawn(type, fontString, options); });
}

/** Warnings' kinds. */
std::vector<DrawingWarning::Kind> WarningsWith(std::string_view type, const std::string& fontString,
                                               const DrawingOptions& options) {
    std::vector<DrawingWarning::Kind> kinds;
    const BarcodeDrawing drawing = Drawn(type, fontString, options);
    for (const DrawingWarning& warning : drawing.Warnings()) {
        kinds.push_back(warning.kind);
    }
    return kinds;
}

TEST(DrawingTest, BarsHaveWholePixelsAndNoGrey) {
    for (const int pixels : {1, 2, 3, 4, 7}) {
        const GreyRaster picture = Drawn(kCode39, kCode39String).Raster(pixels);
        EXPECT_TRUE(IsPureBlackAndWhite(picture)) << pixels;
        std::vector<int> runs = RunsAt(picture, picture.height / 2);
        for (int& run : runs) {
            EXPECT_EQ(run % pixels, 0);
            run /= pixels;
        }
        // "*" nwnnwnwnn, "A" wnnnnwnnw, "*", a narrow gap between, quiet zones of 10.
        EXPECT_EQ(runs, (std::vector<int>{10, 1, 2, 1, 1, 2, 1, 2, 1, 1, 1, 2, 1, 1, 1, 1,
                                          2,  1, 1, 2, 1, 1, 2, 1, 1, 2, 1, 2, 1, 1, 10}));
    }
}

TEST(DrawingTest, Ratio25NeedsAnEvenNumberOfPixels) {
    const BarcodeDrawing drawing = Drawn(kCode39, kHalfString);
    EXPECT_TRUE(drawing.HasHalfModules());
    EXPECT_FALSE(Drawn(kCode39, kCode39String).HasHalfModules());
    EXPECT_TRUE(IsPureBlackAndWhite(drawing.Raster(2)));
    EXPECT_EQ(ProblemOf([&] { PngOf(drawing, {.pixelsPerModule = 3}); }).reason,
              Reason::kOddPixels);
}

TEST(DrawingTest, QuietZonesAreTheStandards) {
    // Modules left of the first and right of the last bar. ISO/IEC 15420 for EAN-13: 11 and 7; an
    // add-on has 5 on its right.
    const auto ends = [](std::string_view type, const std::string& fontString) {
        const GreyRaster picture = Drawn(type, fontString).Raster(1);
        const std::vector<int> runs = RunsAt(picture, picture.height / 2);
        return std::pair(runs.front(), runs.back());
    };
    EXPECT_EQ(ends(kEan13, kEan13String), std::pair(11, 7));
    EXPECT_EQ(ends(kEan13, kEan13String + " +\"!="), std::pair(11, 5));
    EXPECT_EQ(ends("_BARCODE_EAN8_", "(1234*PQRK("), std::pair(7, 7));
    EXPECT_EQ(ends("_QVT_BARCODE_UPCA_", "U(a36000*MTLOPm(W"), std::pair(9, 9));
    EXPECT_EQ(ends("_BARCODE_CODE39_", "*A*"), std::pair(10, 10));
    EXPECT_EQ(ends("_BARCODE_MSIPLESSEY_", "<1>"), std::pair(12, 12));
}

TEST(DrawingTest, TheQuietZoneCanBeChosen) {
    const double x = FindTypeByPrefix(kCode39)->dimensions.xDimension;
    const GreyRaster picture = Drawn(kCode39, kCode39String, {.quietZone = 20 * x}).Raster(1);
    EXPECT_EQ(RunsAt(picture, 5).front(), 20);
    EXPECT_EQ(RunsAt(picture, 5).back(), 20);
}

TEST(DrawingTest, SizesArePoints) {
    const BarcodeDrawing drawing = Drawn(kEan13, kEan13String);
    // 0.33 mm are 0.9354 points; 128 modules an em.
    EXPECT_NEAR(drawing.Module(), 0.33 * 72 / 25.4, 1e-9);
    EXPECT_NEAR(drawing.FontSize(), 119.735, 0.001);
    EXPECT_EQ(drawing.Width(), 11 + 95 + 7);
    EXPECT_NEAR(Drawn("_BARCODE_USPS_IM_", "ADFT").FontSize(), 11.5, 1e-9);
    EXPECT_EQ(PixelsPerModule(Drawn(kCode39, kCode39String), std::nullopt), 3);
    EXPECT_NEAR(PixelsPerModule(Drawn(kCode39, kCode39String, {.dotsPerInch = 600}), std::nullopt),
                6, 1e-9);
    EXPECT_NEAR(DotsPerInch(Drawn(kCode39, kCode39String), 3), 300, 1e-9);
}

TEST(DrawingTest, HeightIsThatOfTheBars) {
    constexpr double kHeight = 20 * kMillimetre;
    const BarcodeDrawing drawing = Drawn(kCode39, kCode39String, {.height = kHeight});
    EXPECT_NEAR(drawing.Height() * drawing.Module(), kHeight, drawing.Module());
    const GreyRaster picture = drawing.Raster(4);
    EXPECT_GT(RunsAt(picture, 5).size(), 1U);
    EXPECT_EQ(RunsAt(picture, 5), RunsAt(picture, picture.height - 5));
    // EAN-13 at 10 mm has shorter bars above text of the usual size.
    const BarcodeDrawing low = Drawn(kEan13, kEan13String, {.height = 10 * kMillimetre});
    EXPECT_NEAR(low.Height() * low.Module(), 10 * kMillimetre + 9 * low.Module(), low.Module());
    EXPECT_EQ(RunsAt(low.Raster(2), 4), RunsAt(Drawn(kEan13, kEan13String).Raster(2), 4));
    // 0.254 mm wide modules: 32 of them a quarter to four times as high.
    const DrawingProblem high = ProblemWith(kCode39, kCode39String, {.height = 33 * kMillimetre});
    EXPECT_EQ(high.reason, Reason::kHeight);
    EXPECT_EQ(high.parameters, (Strings{"2.03", "32.51"}));
    EXPECT_EQ(ProblemWith("_BARCODE_USPS_IM_", "ADFT", {.height = 20}).reason,
              Reason::kFixedHeight);
}

TEST(DrawingTest, InkFillsNarrowerBarsAgain) {
    // A quarter of a module is two of eight pixels, one on each side of a bar.
    for (const auto& [type, fontString] :
         {std::pair(kCode39, kCode39String), std::pair(kEan13, kEan13String),
          std::pair(std::string_view("_BARCODE_CODE128B_"), std::string("\x88"
                                                                        "AB\x42\x8A"))}) {
        const GreyRaster whole = Drawn(type, fontString).Raster(8);
        const GreyRaster narrow =
            Drawn(type, fontString, {.quietZone = 0, .barWidthReduction = 25}).Raster(8);
        const GreyRaster bare = Drawn(type, fontString, {.quietZone = 0}).Raster(8);
        ASSERT_EQ(narrow.width, bare.width);
        // Above the text and below the tops.
        const int y = bare.height / 4;
        for (int x = 1; x + 1 < narrow.width; ++x) {
            const bool isDark =
                narrow.At(x - 1, y) == 0 || narrow.At(x, y) == 0 || narrow.At(x + 1, y) == 0;
            EXPECT_EQ(isDark, bare.At(x, y) == 0) << type << ' ' << x;
        }
        EXPECT_NE(RunsAt(narrow, y), RunsAt(bare, y));
        EXPECT_TRUE(std::ranges::all_of(RunsAt(whole, y), [](int run) { return run % 8 == 0; }));
    }
    const DrawingProblem narrow = ProblemWith(kCode39, kCode39String, {.barWidthReduction = 26});
    EXPECT_EQ(narrow.reason, Reason::kReduction);
    EXPECT_EQ(narrow.parameters, Strings{"25"});
}

TEST(DrawingTest, LimitsThemselvesCanBeHad) {
    // 2.5 of 10 mil are not quite a quarter in floating point, nor 128 X four times the height.
    const double x = FindTypeByPrefix(kCode39)->dimensions.xDimension;
    const double quarter = 100 * (0.0025 * kInch) / (0.010 * kInch);
    Drawn(kCode39, kCode39String, {.xDimension = 0.010 * kInch, .barWidthReduction = quarter});
    Drawn(kCode39, kCode39String, {.barWidthReduction = 25.000000001});
    EXPECT_NEAR(Drawn(kCode39, kCode39String, {.height = 128 * x}).Height(), 128, 1e-6);
    EXPECT_NEAR(Drawn(kCode39, kCode39String, {.height = 8 * x * 0.999999999}).Height(), 8, 1e-6);
}

TEST(DrawingTest, HeightsEndOnPixels) {
    const GreyRaster low = Drawn(kCode39, kCode39String, {.height = 5 * kMillimetre}).Raster(4);
    EXPECT_TRUE(IsPureBlackAndWhite(low));
    // 5 mm are 78.74 pixels of 10 mil / 4.
    EXPECT_EQ(low.height, 79);
    EXPECT_EQ(RunsAt(low, 0), RunsAt(low, 40));
    EXPECT_EQ(RunsAt(low, 78), RunsAt(low, 40));
}

TEST(DrawingTest, LengthsHaveBounds) {
    for (const double x : {1000 * kMillimetre, 1e-5 * kMillimetre, 2e300, -1.0, 0.0}) {
        const DrawingProblem problem = ProblemWith(kCode39, kCode39String, {.xDimension = x});
        EXPECT_EQ(problem.reason, Reason::kXDimension) << x;
        EXPECT_EQ(problem.parameters, (Strings{"0.05", "10"}));
    }
    for (const double quiet : {7200.0, 2e300, 1e308}) {
        const DrawingProblem problem = ProblemWith(kCode39, kCode39String, {.quietZone = quiet});
        EXPECT_EQ(problem.reason, Reason::kPage) << quiet;
        EXPECT_EQ(problem.parameters, Strings{"5080"});
    }
    EXPECT_EQ(ProblemWith(kCode39, kCode39String, {.height = 2e300}).reason, Reason::kHeight);
    EXPECT_EQ(ProblemWith(kCode39, kCode39String, {.barWidthReduction = 2e300}).reason,
              Reason::kReduction);
    EXPECT_EQ(ProblemWith("_BARCODE_I2OF5TEXT_", "0123", {.height = 20}).reason, Reason::kNoBars);
    EXPECT_EQ(ProblemOf([] { Drawn(kCode39, kCode39String).Raster(2000); }).reason,
              Reason::kPicture);
}

TEST(DrawingTest, EanHeightsAreTheStandards) {
    // ISO/IEC 15420 at 100 %: 22.85 mm, EAN-8 18.23 mm; their guards are five modules longer.
    const auto heights = [](std::string_view type, const std::string& fontString) {
        const Shapes shapes = Drawn(type, fontString).Drawn();
        const auto [low, high] = std::minmax_element(
            shapes.bars.begin(), shapes.bars.end(),
            [](const Rectangle& a, const Rectangle& b) { return a.Height() < b.Height(); });
        return std::pair(low->Height() * shapes.unit / kMillimetre,
                         high->Height() * shapes.unit / kMillimetre);
    };
    const auto [ean8, guard8] = heights("_BARCODE_EAN8_", "(1234*PQRK(");
    EXPECT_NEAR(ean8, 18.23, 0.01);
    EXPECT_NEAR(guard8 - ean8, 5 * 0.33, 0.001);
    EXPECT_NEAR(heights(kEan13, kEan13String).first, kEanUpcFace.barHeight * 0.33, 0.01);
}

TEST(DrawingTest, EdgesLieOnDotsAfterReduction) {
    const double half = 0.5 + 1e-6;
    for (const double resolution : {300.0, 600.0, 1200.0, 2400.0}) {
        for (double reduction = 0; reduction <= 25; reduction += 2.5) {
            const Shapes shapes = Drawn(kCode39, kCode39String,
                                        {.barWidthReduction = reduction, .dotsPerInch = resolution})
                                      .Drawn();
            EXPECT_NEAR(shapes.unit, 72 / resolution, 1e-9);
            const double dotsPerModule = resolution / 100;
            for (const Rectangle& bar : shapes.bars) {
                EXPECT_EQ(bar.left, std::round(bar.left));
                EXPECT_EQ(bar.right, std::round(bar.right));
                const double modules = bar.right - bar.left > 1.5 * dotsPerModule ? 2 : 1;
                EXPECT_NEAR(bar.right - bar.left, dotsPerModule * (modules - reduction / 100), half)
                    << resolution << " dpi, " << reduction << " %";
            }
        }
    }
}

TEST(DrawingTest, WholeDotsAreOfferedOrTaken) {
    // 0.33 mm are 3.898 dots at 300 dpi.
    const DrawingProblem problem = ProblemWith(kEan13, kEan13String, {.dotsPerInch = 300});
    EXPECT_EQ(problem.reason, Reason::kNoWholeDots);
    EXPECT_EQ(problem.parameters, (Strings{"300", "3.898", "0.3387", "102.6", "4"}));
    const BarcodeDrawing fitted =
        Drawn(kEan13, kEan13String, {.dotsPerInch = 300, .isFitted = true});
    EXPECT_NEAR(fitted.Module(), 4 * 72 / 300.0, 1e-9);
    // Within the range, even where another one is nearer: 0.17 mm are 4.02 dots at 600 dpi.
    const BarcodeDrawing least =
        Drawn(kCode39, kCode39String,
              {.xDimension = 0.16 * kMillimetre, .dotsPerInch = 600, .isFitted = true});
    EXPECT_NEAR(least.Module(), 5 * 72 / 600.0, 1e-9);
    // What is offered can be had.
    Drawn(kEan13, kEan13String, {.xDimension = 0.3387 * kMillimetre, .dotsPerInch = 300});
}

TEST(DrawingTest, PostalBarsKeepTheirTolerancesAtEveryResolution) {
    for (const double resolution : {300.0, 600.0, 1200.0, 2400.0}) {
        const Shapes shapes =
            Drawn("_BARCODE_USPS_IM_", "ADFTTFDA", {.dotsPerInch = resolution}).Drawn();
        ASSERT_EQ(shapes.bars.size(), 8U);
        const double barWidth = shapes.bars[0].right - shapes.bars[0].left;
        const double pitch = shapes.bars[1].left - shapes.bars[0].left;
        EXPECT_NEAR(barWidth / resolution, 0.020, 0.005);
        EXPECT_GE(resolution / pitch, 20);
        EXPECT_LE(resolution / pitch, 24);
        for (std::size_t i = 1; i < shapes.bars.size(); ++i) {
            EXPECT_EQ(shapes.bars[i].left - shapes.bars[i - 1].left, pitch);
            EXPECT_EQ(shapes.bars[i].right - shapes.bars[i].left, barWidth);
            EXPECT_EQ(shapes.bars[i].left, std::round(shapes.bars[i].left));
        }
    }
    EXPECT_EQ(ProblemWith("_BARCODE_USPS_IM_", "ADFT",
                          {.xDimension = 0.5 * kMillimetre, .dotsPerInch = 300})
                  .reason,
              Reason::kNoWholeDots);
}

TEST(DrawingTest, WarnsOfWhatTheStandardWouldHaveOtherwise) {
    using Kind = DrawingWarning::Kind;
    using Kinds = std::vector<Kind>;
    const auto warnings = [](const DrawingOptions& options) {
        return WarningsWith(kCode39, kCode39String, options);
    };
    const double x = 0.010 * kInch;
    EXPECT_EQ(warnings({}), Kinds{});
    EXPECT_EQ(warnings({.quietZone = 10 * x}), Kinds{});
    EXPECT_EQ(warnings({.quietZone = 9 * x}), Kinds{Kind::kQuietZone});
    EXPECT_EQ(warnings({.height = 5 * kMillimetre}), Kinds{});
    EXPECT_EQ(warnings({.height = 4.9 * kMillimetre}), Kinds{Kind::kLowBars});
    EXPECT_EQ(warnings({.xDimension = 0.16 * kMillimetre}), Kinds{Kind::kXDimension});
    EXPECT_EQ(warnings({.xDimension = 0.17 * kMillimetre}), Kinds{});
    // 10 mil are six dots at 600 dpi.
    EXPECT_EQ(warnings({.barWidthReduction = 10}), Kinds{Kind::kReductionLost});
    EXPECT_EQ(warnings({.barWidthReduction = 100.0 / 6}), Kinds{});
    EXPECT_EQ(warnings({.barWidthReduction = 10, .dotsPerInch = 600}), Kinds{});
    // 15 % of a long symbol are more than its bars.
    std::string many = "B";
    for (int i = 0; i < 40; ++i) many += kCode39String;
    EXPECT_EQ(WarningsWith(kCode39, many, {}), Kinds{Kind::kLowBars});
    EXPECT_EQ(WarningsWith(kEan13, kEan13String + " +\"!=", {}), Kinds{});
    EXPECT_EQ(WarningsWith("_BARCODE_EAN8_", "(1234*PQRK(", {}), Kinds{});
    EXPECT_EQ(WarningsWith(kEan13, kEan13String, {.height = 20 * kMillimetre}),
              Kinds{Kind::kLowBars});
    EXPECT_EQ(WarningsWith(kEan13, kEan13String, {.xDimension = 0.26 * kMillimetre}),
              Kinds{Kind::kXDimension});
    EXPECT_EQ(WarningsWith("_BARCODE_USPS_IM_", "ADFT", {}), Kinds{});
    EXPECT_EQ(WarningsWith("_BARCODE_USPS_IM_", "ADFT", {.xDimension = 0.6 * kMillimetre}),
              Kinds{Kind::kPostalPitch});
}

TEST(DrawingTest, BearerBarsFrameTheQuietZones) {
    const BarcodeDrawing bare = Drawn("_QVT_BARCODE_I2OF5_", kCode39String);
    const BarcodeDrawing framed =
        Drawn("_QVT_BARCODE_I2OF5_", kCode39String, {.hasBearerBars = true});
    const double thickness = (framed.Width() - bare.Width()) / 2;
    EXPECT_GE(thickness * framed.Module(), 4.83 * kMillimetre);
    const GreyRaster picture = framed.Raster(2);
    const int side = static_cast<int>(2 * thickness);
    const std::vector<int> frame{0, picture.width};
    for (const int y : {0, side - 1, picture.height - side, picture.height - 1}) {
        EXPECT_EQ(RunsAt(picture, y), frame) << y;
    }
    EXPECT_NE(RunsAt(picture, side), frame);
    EXPECT_NE(RunsAt(picture, picture.height - side - 1), frame);
    std::vector<int> expected = RunsAt(bare.Raster(2), 4);
    expected.insert(expected.begin(), {0, side});
    expected.push_back(side);
    EXPECT_EQ(RunsAt(picture, picture.height / 2), expected);
    EXPECT_EQ(ProblemWith(kCode39, kCode39String, {.hasBearerBars = true}).reason,
              Reason::kNoBearer);
}

TEST(DrawingTest, MarginMarksStandAtTheQuietZonesEnds) {
    const auto darkAt = [](const GreyRaster& picture, int fromX, int toX) {
        int dark = 0;
        for (int y = 0; y < picture.height; ++y) {
            for (int x = fromX; x < toX; ++x) dark += picture.At(x, y) < 128 ? 1 : 0;
        }
        return dark;
    };
    const GreyRaster ean13 = Drawn(kEan13, kEan13String, {.hasMarginMarks = true}).Raster(4);
    EXPECT_GT(darkAt(ean13, ean13.width - 2, ean13.width), 0);
    EXPECT_EQ(darkAt(ean13, 0, 8), 0);
    const GreyRaster ean8 =
        Drawn("_BARCODE_EAN8_", "(1234*PQRK(", {.hasMarginMarks = true}).Raster(4);
    EXPECT_GT(darkAt(ean8, ean8.width - 2, ean8.width), 0);
    EXPECT_GT(darkAt(ean8, 0, 2), 0);
    const GreyRaster bare = Drawn("_BARCODE_EAN8_", "(1234*PQRK(").Raster(4);
    EXPECT_EQ(darkAt(bare, 0, 8), 0);
    EXPECT_EQ(
        ProblemWith("_QVT_BARCODE_UPCA_", "U(a36000*MTLOPm(W", {.hasMarginMarks = true}).reason,
        Reason::kNoMarginMarks);
}

TEST(DrawingTest, PaintsIntoAPictureOfTheCallers) {
    const BarcodeDrawing drawing = Drawn(kEan13, kEan13String);
    const GreyRaster raster = drawing.Raster(2);
    constexpr std::uint32_t kWhite = 0xFFFFFFFF;
    const int width = raster.width + 10;
    const int height = raster.height + 6;
    std::vector<std::uint32_t> pixels(
        static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kWhite);
    drawing.PaintArgb(pixels.data(), width, height, 4 * width, 2, 5, 3);
    for (int y = 0; y < raster.height; ++y) {
        for (int x = 0; x < raster.width; ++x) {
            const auto row = static_cast<std::size_t>(y) + 3;
            const auto column = static_cast<std::size_t>(x) + 5;
            const std::uint32_t pixel = pixels[row * static_cast<std::size_t>(width) + column];
            // Another painter has other greys at the digits' edges.
            ASSERT_NEAR(static_cast<int>(pixel & 0xFF), raster.At(x, y), 16) << x << ", " << y;
        }
    }
    EXPECT_EQ(pixels.front(), kWhite);
    EXPECT_EQ(pixels.back(), kWhite);
}

TEST(DrawingTest, TextStandsBelowTheBars) {
    const BarcodeDrawing bare = Drawn(kCode39, kCode39String);
    const BarcodeDrawing labelled = Drawn(kCode39, kCode39String, {.text = "A"});
    EXPECT_EQ(labelled.Width(), bare.Width());
    EXPECT_GT(labelled.Height(), bare.Height() + 8);
    const GreyRaster picture = labelled.Raster(4);
    EXPECT_GT(RunsAt(picture, static_cast<int>(4 * (bare.Height() + 6))).size(), 1U);
    EXPECT_EQ(RunsAt(picture, static_cast<int>(4 * bare.Height())).size(), 1U);
    // Text that is wider than the bars is made smaller.
    EXPECT_EQ(Drawn(kCode39, kCode39String, {.text = std::string(200, 'W')}).Width(), bare.Width());
}

TEST(DrawingTest, TextTypesAreDrawnAsText) {
    const BarcodeDrawing drawing = Drawn("_BARCODE_I2OF5TEXT_", "0123");
    EXPECT_EQ(drawing.FontSize(), 0);
    EXPECT_GT(drawing.Width(), 20);
}

// DejaVu Sans, which Debian installs along with the other one, has Hebrew.
TEST(DrawingTest, CharactersThatTheTextFaceLacksComeFromAnother) {
    const TextFace face(false);
    const TextLine line = face.Set("a\u05D0b", 10);
    ASSERT_EQ(line.glyphs.size(), 3U);
    EXPECT_EQ(line.glyphs[0].file, line.glyphs[2].file);
    EXPECT_NE(line.glyphs[1].file, line.glyphs[0].file);
    EXPECT_NE(line.glyphs[1].index, 0U);
    Outline outline;
    face.AddTo(outline, line, 10, 0, 0);
    EXPECT_GT(outline.size(), 20U);
    // Nobody has a private one.
    EXPECT_EQ(face.Set("\U0010FFFD", 10).glyphs[0].index, 0U);
}

TEST(DrawingTest, AnEmptyFontStringIsAnEmptyDrawing) {
    const GreyRaster picture = Drawn(kCode39, "").Raster(1);
    EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), 0), 0);
}

TEST(DrawingTest, SaysWhichFontIsMissing) {
    Fonts nowhere("/nowhere");
    const DrawingProblem problem = ProblemOf(
        [&] { BarcodeDrawing::Make(nowhere, *FindTypeByPrefix(kCode39), kCode39String, {}); });
    EXPECT_EQ(problem.reason, Reason::kNoFont);
    EXPECT_EQ(problem.parameters, Strings{"/nowhere/LinewrightBars.ttf"});
}

}  // namespace

}  // namespace linewright
