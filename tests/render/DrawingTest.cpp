#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "render/Export.h"
#include "tests/TestHost.h"
#include "tests/render/Drawn.h"
#include "words/Words.h"

namespace linewright {

namespace {

using testing::HasSubstr;

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

std::string ProblemWith(std::string_view type, const std::string& fontString,
                        const DrawingOptions& options,
                        const std::filesystem::path& fonts = LINEWRIGHT_FONTS) {
    DrawingProblem problem;
    EXPECT_FALSE(
        BarcodeDrawing::Make(fonts, *FindTypeByPrefix(type), fontString, options, problem));
    return Sentence(DrawingFailure(problem), Language::kEnglish);
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
    EXPECT_FALSE(IsPureBlackAndWhite(drawing.Raster(3)));
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
    EXPECT_NEAR(PixelsPerModule(Drawn(kCode39, kCode39String), 300), 3, 1e-9);
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
    EXPECT_THAT(ProblemWith(kCode39, kCode39String, {.height = 33 * kMillimetre}),
                HasSubstr("2.03 mm to 32.51 mm"));
    EXPECT_THAT(ProblemWith("_BARCODE_USPS_IM_", "ADFT", {.height = 20}), HasSubstr("postal"));
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
    EXPECT_THAT(ProblemWith(kCode39, kCode39String, {.barWidthReduction = 26}), HasSubstr("25 %"));
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
            ASSERT_NEAR(static_cast<int>(pixel & 0xFF), raster.At(x, y), 1) << x << ", " << y;
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
    EXPECT_GT(RunsAt(picture, 4 * (bare.Height() + 6)).size(), 1U);
    EXPECT_EQ(RunsAt(picture, 4 * bare.Height()).size(), 1U);
    // Text that is wider than the bars is made smaller.
    EXPECT_EQ(Drawn(kCode39, kCode39String, {.text = std::string(200, 'W')}).Width(), bare.Width());
}

TEST(DrawingTest, TextTypesAreDrawnAsText) {
    const BarcodeDrawing drawing = Drawn("_BARCODE_I2OF5TEXT_", "0123");
    EXPECT_EQ(drawing.FontSize(), 0);
    EXPECT_GT(drawing.Width(), 20);
}

TEST(DrawingTest, AnEmptyFontStringIsAnEmptyDrawing) {
    const GreyRaster picture = Drawn(kCode39, "").Raster(1);
    EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), 0), 0);
}

TEST(DrawingTest, SaysWhichFontIsMissing) {
    EXPECT_THAT(ProblemWith(kCode39, kCode39String, {}, "/nowhere"),
                HasSubstr("/nowhere/LinewrightBars.ttf"));
}

}  // namespace

}  // namespace linewright
