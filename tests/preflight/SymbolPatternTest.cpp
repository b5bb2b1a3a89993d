#include "preflight/SymbolPattern.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "preflight/Measures.h"

namespace linewright {
namespace {

/** A line with a space of ten modules on both sides. */
std::vector<double> Widths(std::string_view modules) {
    std::vector<double> widths{10};
    for (const char width : modules) widths.push_back(width - '0');
    widths.push_back(10);
    return widths;
}

std::optional<SymbolPattern> Find(const PatternQuery& query, const std::vector<double>& widths) {
    return FindPattern(query, widths, 0, widths.size());
}

// Start B, "A", check character 34, stop.
constexpr std::string_view kCode128 = "2112141113231311232331112";
// A wide bar and a narrow space, 1 (0001), a narrow bar, a wide space, a narrow bar.
constexpr std::string_view kMsi =
    "21"
    "12121221"
    "121";

TEST(SymbolPattern, Code128IsFoundByItsCheckCharacter) {
    const auto pattern = Find({.symbology = Symbology::kCode128}, Widths(kCode128));
    ASSERT_TRUE(pattern);
    EXPECT_EQ(pattern->first, 1);
    EXPECT_EQ(pattern->nominal.size(), kCode128.size());
    // With 35 in place of 34 the sum is another one.
    EXPECT_FALSE(Find({.symbology = Symbology::kCode128}, Widths("2112141113231321132331112")));
}

TEST(SymbolPattern, BarsThatGrewAreTheSameSymbol) {
    std::vector<double> widths = Widths(kCode128);
    for (std::size_t place = 1; place + 1 < widths.size(); ++place) {
        widths[place] += place % 2 != 0 ? 0.3 : -0.3;
    }
    EXPECT_TRUE(Find({.symbology = Symbology::kCode128}, widths));
}

TEST(SymbolPattern, IsFoundFromTheOtherEnd) {
    std::vector<double> widths = Widths(kCode128);
    std::reverse(widths.begin(), widths.end());
    const auto pattern = Find({.symbology = Symbology::kCode128}, widths);
    ASSERT_TRUE(pattern);
    EXPECT_TRUE(pattern->isReversed);
    EXPECT_EQ(pattern->first, kCode128.size());
}

TEST(SymbolPattern, MsiHasItsDigits) {
    std::string modules(kMsi.substr(0, 2));
    // 1 and 9: 0001 and 1001.
    modules += "12121221";
    modules += "21121221";
    modules += kMsi.substr(10);
    const auto pattern = Find({.symbology = Symbology::kMsi}, Widths(modules));
    ASSERT_TRUE(pattern);
    EXPECT_EQ(pattern->digits, "19");
    EXPECT_TRUE(Find({.symbology = Symbology::kMsi, .digits = "19"}, Widths(modules)));
    EXPECT_FALSE(Find({.symbology = Symbology::kMsi, .digits = "91"}, Widths(modules)));
}

TEST(SymbolPattern, NothingIsFoundInHatching) {
    const std::vector<double> even(80, 1.0);
    for (const Symbology symbology :
         {Symbology::kCode128, Symbology::kCode39, Symbology::kCodabar, Symbology::kInterleaved2of5,
          Symbology::kEanUpc, Symbology::kMsi}) {
        EXPECT_FALSE(Find({.symbology = symbology, .length = 4}, even));
    }
    EXPECT_FALSE(Find({.symbology = Symbology::kCode128}, {}));
}

/** A line as elements from 0 mm on, bars black on white; each bar wider by a part of a module. */
LineScan ScanOf(const std::vector<double>& widths, double gain, double dark) {
    LineScan scan;
    double position = 0;
    for (std::size_t place = 0; place < widths.size(); ++place) {
        const bool isBar = place % 2 != 0;
        const double width = widths[place] + (isBar ? gain : -gain);
        const double reflectance = isBar ? dark : 1;
        scan.elements.push_back({position, position + width, reflectance, reflectance});
        position += width;
    }
    scan.darkest = dark;
    scan.lightest = 1;
    return scan;
}

TEST(Measures, SayWhatTheLineIs) {
    const std::vector<double> widths = Widths(kCode128);
    const SymbolLine line{ScanOf(widths, 0.2, 0),
                          *Find({.symbology = Symbology::kCode128}, widths)};
    const Measures measures = MeasureLines({line}, LineSource::kShapes);
    EXPECT_NEAR(measures.barGain, 0.2, 0.02);
    EXPECT_NEAR(measures.xDimension, 1, 0.02);
    EXPECT_NEAR(measures.quietLeft, 9.8, 0.2);
    ASSERT_TRUE(measures.parts);
    EXPECT_EQ(measures.parts->symbolContrast, 1);
    EXPECT_GE(measures.parts->grade, 3);
}

TEST(Measures, HalfTheContrastIsGradeTwo) {
    const std::vector<double> widths = Widths(kCode128);
    const SymbolLine line{ScanOf(widths, 0, 0.5),
                          *Find({.symbology = Symbology::kCode128}, widths)};
    const Measures measures = MeasureLines({line}, LineSource::kShapes);
    EXPECT_EQ(measures.parts->symbolContrast, 0.5);
    EXPECT_EQ(measures.parts->grade, 2);
    EXPECT_EQ(measures.parts->decodability, 1);
}

TEST(Measures, QuietZonesOfShapesAreTheSmallest) {
    std::vector<double> widths = Widths(kCode128);
    const auto pattern = Find({.symbology = Symbology::kCode128}, widths);
    const SymbolLine wide{ScanOf(widths, 0, 0), *pattern};
    widths.front() = 3;
    const SymbolLine narrow{ScanOf(widths, 0, 0), *pattern};
    const std::vector<SymbolLine> lines{wide, narrow, wide};
    EXPECT_NEAR(MeasureLines(lines, LineSource::kShapes).quietLeft, 3, 1e-9);
    EXPECT_NEAR(MeasureLines(lines, LineSource::kManyPixels).quietLeft, 10, 1e-9);
}

}  // namespace
}  // namespace linewright
