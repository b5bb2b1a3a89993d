#include <gtest/gtest.h>

#include <string>

#include "merge/Failure.h"
#include "preflight/BarGroups.h"
#include "preflight/LineScan.h"
#include "preflight/SvgPath.h"
#include "preflight/VectorPage.h"

namespace linewright {
namespace {

constexpr PageScale kMillimetres{.unitsPerMillimetre = 1};

VectorPage Read(const std::string& content) {
    return ReadSvg("<svg xmlns:xlink=\"x\">" + content + "</svg>", kMillimetres);
}

std::string Rectangle(double left, double right, const std::string& colour,
                      const std::string& more = "") {
    const std::string l = std::to_string(left);
    const std::string r = std::to_string(right);
    return "<path style=\"fill:" + colour + ";fill-opacity:1;\" d=\"M " + l + " 0 L " + r +
           " 0 L " + r + " 10 L " + l + " 10 Z M " + l + " 0 \" " + more + "/>";
}

const std::string kBlack = "rgb(0%,0%,0%)";
const std::string kWhite = "rgb(100%,100%,100%)";

std::vector<double> Edges(const VectorPage& page) {
    const LineScan scan = ScanStretches(page.Along(5, 0, 30, false), 0, 30);
    std::vector<double> edges;
    edges.reserve(scan.elements.size());
    for (std::size_t place = 1; place < scan.elements.size(); ++place) {
        edges.push_back(scan.elements[place].begin);
    }
    return edges;
}

TEST(Svg, ShapesLieUponEachOther) {
    const auto edges = Edges(Read(Rectangle(4, 20, kBlack) + Rectangle(8, 12, kWhite)));
    EXPECT_EQ(edges, (std::vector<double>{4, 8, 12, 20}));
}

TEST(Svg, ShapesThatAbutAreOne) {
    const auto edges = Edges(Read(Rectangle(4, 8, kBlack) + Rectangle(8.001, 12, kBlack)));
    EXPECT_EQ(edges, (std::vector<double>{4, 12}));
}

TEST(Svg, GlyphsStandWhereTheyAreUsed) {
    const auto edges = Edges(
        Read("<defs><symbol id=\"g\"><path d=\"M 0 0 L 2 0 L 2 -9 L 0 -9 Z\"/></symbol></defs>"
             "<g style=\"fill:rgb(0%,0%,0%);\"><use xlink:href=\"#g\" x=\"3\" y=\"9\"/>"
             "<use xlink:href=\"#g\" x=\"7\" y=\"9\"/></g>"));
    EXPECT_EQ(edges, (std::vector<double>{3, 5, 7, 9}));
}

TEST(Svg, ClipsCutAndTransformationsMove) {
    const auto edges = Edges(
        Read("<defs><clipPath id=\"c\"><rect x=\"0\" y=\"0\" width=\"6\" height=\"10\"/></clipPath>"
             "</defs><g clip-path=\"url(#c)\">" +
             Rectangle(2, 20, kBlack) + "</g>" +
             Rectangle(1, 2, kBlack, "transform=\"translate(10,0)\"")));
    EXPECT_EQ(edges, (std::vector<double>{2, 6, 11, 12}));
}

TEST(Svg, LinesAreAsWideAsTheirPen) {
    const auto edges = Edges(Read("<path style=\"fill:none;stroke-width:2;stroke:" + kBlack +
                                  ";\" d=\"M 5 0 L 5 10\"/>"));
    EXPECT_EQ(edges, (std::vector<double>{4, 6}));
}

TEST(Svg, OfPicturesNobodyKnowsWhatIsSeen) {
    const VectorPage page =
        Read(Rectangle(4, 8, kBlack) + "<image x=\"6\" y=\"0\" width=\"4\" height=\"10\"/>");
    const LineScan scan = ScanStretches(page.Along(5, 0, 30, false), 4, 8);
    EXPECT_TRUE(scan.isUnknown);
    EXPECT_FALSE(ScanStretches(page.Along(5, 0, 30, false), 11, 20).isUnknown);
}

TEST(Svg, ATurnedLineCrossesRows) {
    const VectorPage page = Read("<path d=\"M 0 3 L 10 3 L 10 5 L 0 5 Z\"/>");
    const LineScan scan = ScanStretches(page.Along(5, 0, 30, true), 0, 30);
    ASSERT_EQ(scan.elements.size(), 3);
    EXPECT_EQ(scan.elements[1].begin, 3);
    EXPECT_EQ(scan.elements[1].end, 5);
}

TEST(Svg, WhatIsNoNumberPaintsNothing) {
    for (const char* const data :
         {"M nan 0 L 5 0 L 5 9 Z", "M inf 0 L 5 0 L 5 9 Z", "M 1e300 0 L 5 0 L 5 9 Z",
          "L 5 0 L 5 9 Z", "M 0 0 C 1 1", "M 0 0 A 1 1 0 0 0 5 5", "", "M"}) {
        EXPECT_TRUE(Read("<path d=\"" + std::string(data) + "\"/>").shapes.empty()) << data;
    }
}

TEST(Svg, EndlessUseIsRefused) {
    EXPECT_THROW(Read("<g id=\"a\"><use xlink:href=\"#a\"/></g>"), Failure);
    EXPECT_THROW(ReadSvg("<svg", kMillimetres), Failure);
    EXPECT_THROW(ReadSvg("", kMillimetres), Failure);
    std::string doubling = "<defs><g id=\"g0\"><rect width=\"1\" height=\"1\"/></g>";
    for (int level = 1; level < 60; ++level) {
        const std::string below = "<use xlink:href=\"#g" + std::to_string(level - 1) + "\"/>";
        doubling.append("<g id=\"g").append(std::to_string(level)).append("\">");
        doubling.append(below).append(below).append("</g>");
    }
    EXPECT_THROW(Read(doubling + "</defs><use xlink:href=\"#g59\"/>"), Failure);
}

TEST(BarGroups, BarsAreOneGroupAndATableIsNone) {
    std::string bars;
    std::string table;
    for (int bar = 0; bar < 20; ++bar) {
        const double left = bar + (bar % 3 == 0 ? 0.2 : 0);
        bars += Rectangle(left, left + (bar % 4 == 0 ? 0.6 : 0.3), kBlack);
        table += Rectangle(bar * 7 + bar % 3, bar * 7 + bar % 3 + 0.1, kBlack);
    }
    const VectorPage page = Read(bars);
    const auto groups = FindBarGroups(page, false);
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups[0].sides.size(), 40);
    EXPECT_EQ(SeenPart(page, groups[0], false), 1);
    const VectorPage covered = Read(bars + Rectangle(5, 15, kWhite));
    EXPECT_LT(SeenPart(covered, groups[0], false), 0.6);
    EXPECT_TRUE(FindBarGroups(Read(table), false).empty());
}

}  // namespace
}  // namespace linewright
