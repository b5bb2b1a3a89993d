#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "render/Export.h"
#include "tests/render/Drawn.h"

// What files hold, by their bytes; draw_program_test.py has other programs read them.

namespace linewright {

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr std::string_view kCode39 = "_QVT_BARCODE_CODE39_";
const std::string kCode39String = "BAEEAEABAEBAEEA";
constexpr std::string_view kEan13 = "_QVT_BARCODE_EAN13_";
const std::string kEan13String = "Y(0A63IB*NNNTNL(";

constexpr std::array kFormats{FileFormat::kPdf, FileFormat::kEps, FileFormat::kSvg,
                              FileFormat::kPng, FileFormat::kTiff};

TEST(PressFileTest, TheEndingSaysTheFormat) {
    EXPECT_EQ(FormatOf("a.pdf"), FileFormat::kPdf);
    EXPECT_EQ(FormatOf("A.PDF"), FileFormat::kPdf);
    EXPECT_EQ(FormatOf("a.pdf.Tiff"), FileFormat::kTiff);
    EXPECT_EQ(FormatOf("a.gif"), std::nullopt);
    EXPECT_EQ(FormatOf("pdf"), std::nullopt);
}

TEST(PressFileTest, TwoRunsGiveTheSameBytes) {
    for (const FileFormat format : kFormats) {
        for (const double reduction : {0.0, 10.0}) {
            const auto file = [&] {
                return FileOf(Drawn(kEan13, kEan13String, {.barWidthReduction = reduction}), format,
                              {.title = "pen", .data = "4006381333931"});
            };
            const std::string first = file();
            EXPECT_GT(first.size(), 100U);
            EXPECT_EQ(first, file());
        }
    }
}

TEST(PressFileTest, EpsBoxIsThePage) {
    const std::string eps = EpsOf(Drawn(kCode39, kCode39String, {.quietZone = 20 * kMillimetre}));
    EXPECT_THAT(eps, StartsWith("%!PS-Adobe-3.0 EPSF-3.0\n"));
    // Three characters of 12 modules with gaps, and 79 modules of quiet zone at either side.
    EXPECT_THAT(eps, HasSubstr("\n%%BoundingBox: 0 0 142 24\n"));
    EXPECT_THAT(eps, HasSubstr("\n%%HiResBoundingBox: 0 0 141.12 23.04\n"));
}

TEST(PressFileTest, SvgIsSmallAndAsLargeAsItsPage) {
    const std::string svg = SvgOf(Drawn(kEan13, kEan13String), {.title = "a < b & c"});
    EXPECT_LE(svg.size(), 5U * 1024);
    EXPECT_THAT(svg, HasSubstr("<title>a &lt; b &amp; c</title>"));
    EXPECT_THAT(svg, HasSubstr("width=\"37.29mm\""));
    EXPECT_THAT(svg, HasSubstr("shape-rendering=\"crispEdges\""));
    EXPECT_THAT(svg, HasSubstr("<path fill=\"none\" d=\"M0 0H113V"));
}

TEST(PressFileTest, InksAreTheOnesAskedFor) {
    const BarcodeDrawing drawing = Drawn(kCode39, kCode39String, {.text = "A"});
    const ExportOptions cmyk{.ink = {Ink::Kind::kCmyk, {1, 0.5, 0, 0.25}, ""}};
    const ExportOptions spot{.ink = {Ink::Kind::kSpot, {}, "PANTONE 300 (C)"}};
    EXPECT_THAT(EpsOf(drawing), HasSubstr("\ntrue setoverprint\n0 setgray\n"));
    EXPECT_THAT(EpsOf(drawing, cmyk), HasSubstr("\n1 0.5 0 0.25 setcmykcolor\n"));
    EXPECT_THAT(EpsOf(drawing, spot), HasSubstr("[/Separation (PANTONE 300 \\(C\\)) /DeviceCMYK"));
    EXPECT_THAT(EpsOf(drawing, spot), Not(HasSubstr("setgray")));
    for (const FileFormat format : {FileFormat::kSvg, FileFormat::kPng, FileFormat::kTiff}) {
        try {
            FileOf(drawing, format, spot);
            ADD_FAILURE() << "another ink was taken";
        } catch (const DrawingFailure& failure) {
            EXPECT_EQ(failure.problem.reason, DrawingProblem::Reason::kInk);
        }
    }
}

TEST(PressFileTest, PicturesWiderThanCairosAreWhole) {
    std::string many = "B";
    for (int i = 0; i < 60; ++i) many += kCode39String;
    const BarcodeDrawing drawing = Drawn(kCode39, many);
    const GreyRaster fine = drawing.Raster(20);
    const GreyRaster coarse = drawing.Raster(1);
    ASSERT_GT(fine.width, 32767);
    for (int x = 0; x < fine.width; ++x) {
        ASSERT_EQ(fine.At(x, 100), coarse.At(x / 20, 5)) << x;
    }
    EXPECT_GT(PngOf(drawing, {.pixelsPerModule = 20}).size(), 1000U);
    EXPECT_GT(TiffOf(drawing, {.pixelsPerModule = 20}).size(), 1000U);
}

// More curves in a row than FreeType takes at once.
TEST(PressFileTest, LongTextIsWhole) {
    std::string many;
    for (int i = 0; i < 60; ++i) many += kCode39String;
    std::string text;
    for (int i = 0; i < 125; ++i) text += "8&";
    const BarcodeDrawing drawing = Drawn(kCode39, many, {.text = text});
    for (const int pixels : {1, 2, 20}) {
        const GreyRaster picture = drawing.Raster(pixels);
        const int middle = picture.height - 5 * pixels;
        const auto hasInk = [&](int x) { return picture.At(x, middle) < 128; };
        int from = 0;
        while (!hasInk(from)) ++from;
        int to = picture.width - 1;
        while (!hasInk(to)) --to;
        // 250 characters of six modules.
        ASSERT_GT(to - from, 1400 * pixels) << pixels;
        for (int start = from; start + 24 * pixels < to; start += 24 * pixels) {
            bool isInked = false;
            for (int x = start; x < start + 24 * pixels; ++x) isInked = isInked || hasInk(x);
            EXPECT_TRUE(isInked) << pixels << " at " << start;
        }
    }
}

}  // namespace

}  // namespace linewright
