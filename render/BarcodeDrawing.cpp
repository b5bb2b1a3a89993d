#include "render/BarcodeDrawing.h"

#include <algorithm>
#include <cmath>

#include "render/Decimal.h"
#include "render/Resolution.h"
#include "render/Tolerances.h"

namespace linewright {

namespace {

using Reason = DrawingProblem::Reason;

/** The white right of an add-on, in modules (ISO/IEC 15420). */
constexpr double kAddOnQuiet = 5;
constexpr char kAddOnStart = '+';
/** The size of text below bars and its distance from them, in narrowest bars. */
constexpr double kTextSize = 10;
constexpr double kPostalTextSize = 5.5;
constexpr double kTextGap = 0.1;
/** What a line needs above and below its baseline, in sizes. */
constexpr double kAscent = 0.93;
constexpr double kDescent = 0.24;
/** GS1 General Specifications, 5.3.2: of the frame around ITF-14. */
constexpr double kBearerBar = 4.83 * kMillimetre;
/** Of a light-margin mark, in modules. */
constexpr double kMarkHeight = 5;
constexpr double kMarkWidth = 3;
constexpr double kMarkStroke = 1;

constexpr double kLeastHeight = 25;
constexpr double kMostHeight = 400;
constexpr double kMostReduction = 25;
/** No press prints finer bars and no reader reads wider ones. */
constexpr double kLeastX = 0.05 * kMillimetre;
constexpr double kMostX = 10 * kMillimetre;
/** No PDF page is longer (ISO 32000-1, annex C). */
constexpr double kLongestSide = 14400;
/** Numbers that differ by less than this part of them are the same. */
constexpr double kSame = 1e-6;

struct Span {
    double from = 0;
    double to = 0;
    bool isEmpty = true;

    void Include(double low, double high) {
        from = isEmpty ? low : std::min(from, low);
        to = isEmpty ? high : std::max(to, high);
        isEmpty = false;
    }
};

/** A number at or near a limit counts as within. */
std::optional<double> Within(double number, double least, double most) {
    if (!(number > least - kSame * most && number < most + kSame * most)) return std::nullopt;
    return std::clamp(number, least, most);
}

double HeightPercentOf(const BarcodeType& type, double module, std::optional<double> height) {
    const double fontHeight = module * type.face->barHeight;
    if (!height) {
        if (type.dimensions.barHeight == 0) return 100;
        return 100 * type.dimensions.barHeight / type.face->barHeight;
    }
    const auto percent = Within(100 * *height / fontHeight, kLeastHeight, kMostHeight);
    if (!percent) {
        throw DrawingFailure(Reason::kHeight, {Millimetres(fontHeight * kLeastHeight / 100),
                                               Millimetres(fontHeight * kMostHeight / 100)});
    }
    if (std::abs(*percent - 100) < kSame * 100) return 100;
    if (type.HasFixedHeight()) throw DrawingFailure(Reason::kFixedHeight);
    return *percent;
}

double ReductionOf(double percent) {
    const auto reduction = Within(percent, 0, kMostReduction);
    if (!reduction) throw DrawingFailure(Reason::kReduction, {Decimal(kMostReduction, 0)});
    return *reduction;
}

/** What a type's bars must be for a wish to make sense. */
void CheckKind(const BarcodeType& type, const DrawingOptions& options) {
    if (type.face == nullptr && (options.height || options.barWidthReduction != 0)) {
        throw DrawingFailure(Reason::kNoBars);
    }
    if (options.hasBearerBars && type.symbology != Symbology::kInterleaved2of5) {
        throw DrawingFailure(Reason::kNoBearer);
    }
    const bool isEan = type.trait == Trait::kLargeFirstDigit || type.code == TypeCode::kEan8;
    if (options.hasMarginMarks && !isEan) throw DrawingFailure(Reason::kNoMarginMarks);
}

}  // namespace

BarcodeDrawing BarcodeDrawing::Make(Fonts& fonts, const BarcodeType& type,
                                    std::string_view fontString, const DrawingOptions& options) {
    CheckKind(type, options);
    BarcodeDrawing drawing;
    drawing.face = type.face;
    drawing.hasHalfModules =
        type.face == &kBarsFace && fontString.find_first_of("XYZ") != std::string_view::npos;
    drawing.FindModule(type, options);
    if (type.face == nullptr) {
        drawing.isFontText = true;
        drawing.textFace = fonts.Text();
        drawing.PlaceText(type, std::string(fontString));
        drawing.CheckSize();
        return drawing;
    }
    const double heightPercent = HeightPercentOf(type, drawing.module, options.height);
    drawing.reduction = ReductionOf(options.barWidthReduction) / 100 * type.dimensions.modulesPerX;
    drawing.font = fonts.Barcode(*type.face, type.face->printsText ? 100 : heightPercent);
    const auto shaped = fonts.Barcode(*type.face, heightPercent);
    drawing.barHeight = shaped->BarHeight() * drawing.module;
    const bool isEveryModuleWhole = !options.dotsPerInch || !type.HasFixedHeight();
    drawing.isFontText = shaped == drawing.font && drawing.reduction == 0 && isEveryModuleWhole &&
                         !options.hasBearerBars && !options.hasMarginMarks;
    drawing.PlaceGlyphs(*shaped, type, fontString, options);
    if (options.hasBearerBars) drawing.PlaceBearerBars();
    if (!options.text.empty()) {
        drawing.textFace = fonts.Text();
        drawing.PlaceText(type, options.text);
    }
    drawing.CheckSize();
    return drawing;
}

double BarcodeDrawing::FontSize() const {
    return face == nullptr ? 0 : module * face->modulesPerEm;
}

void BarcodeDrawing::FindModule(const BarcodeType& type, const DrawingOptions& options) {
    const Dimensions& row = type.dimensions;
    const double x = options.xDimension.value_or(row.xDimension);
    if (!Within(x, kLeastX, kMostX)) {
        throw DrawingFailure(Reason::kXDimension, {Millimetres(kLeastX), Millimetres(kMostX)});
    }
    module = x / row.modulesPerX;
    dotsPerInch = options.dotsPerInch;
    if (!dotsPerInch || type.face == nullptr) return;
    const double stretch = StretchOf(type, hasHalfModules);
    const DotModule nearest = NearestDotModule(type, stretch, module, *dotsPerInch);
    constexpr double kWhole = 0.001;
    const double dots = module * stretch * *dotsPerInch / kInch;
    const bool isWhole = dots > 0.5 && std::abs(dots - std::round(dots)) < kWhole;
    const bool isFree = options.isFitted || (type.HasFixedHeight() && !options.xDimension);
    if (isWhole) {
        module = std::round(dots) * kInch / *dotsPerInch / stretch;
    } else if (isFree) {
        module = nearest.module;
    } else {
        const double offered = nearest.module * row.modulesPerX;
        throw DrawingFailure(
            Reason::kNoWholeDots,
            {Decimal(*dotsPerInch, 3), Decimal(dots / stretch, 3), Millimetres(offered, 4),
             Decimal(100 * offered / row.xDimension, 1), Decimal(nearest.dots / stretch, 2)});
    }
}

void BarcodeDrawing::PlaceGlyphs(const BarcodeFont& shaped, const BarcodeType& type,
                                 std::string_view fontString, const DrawingOptions& options) {
    const Dimensions& row = type.dimensions;
    Span ink;
    Span upright;
    Span bar;
    double x = 0;
    for (const char byte : fontString) {
        const bool isLarge = type.trait == Trait::kLargeFirstDigit && glyphs.empty();
        const BarcodeGlyph glyph = shaped.GlyphOf(static_cast<unsigned char>(byte), isLarge);
        glyphs.push_back({glyph.index, x, 0});
        for (const Rectangle& side : glyph.bars) {
            bars.push_back({x + side.left, side.top, x + side.right, side.bottom});
            bar.Include(x + side.left, x + side.right);
            ink.Include(x + side.left, x + side.right);
            upright.Include(side.top, side.bottom);
        }
        for (const PathStep& step : glyph.text) {
            outline.push_back(
                {step.kind, {x + step.control.x, step.control.y}, {x + step.end.x, step.end.y}});
            ink.Include(x + step.end.x, x + step.end.x);
            upright.Include(step.end.y, step.end.y);
        }
        x += glyph.advance;
    }
    const bool hasAddOn = face->printsText && fontString.find(kAddOnStart) != fontString.npos;
    const double standardRight = hasAddOn ? kAddOnQuiet : row.quietRight;
    const auto quietZone =
        options.quietZone ? std::optional(*options.quietZone / module) : std::nullopt;
    const double left =
        std::floor(std::min(ink.from, bar.from - quietZone.value_or(row.quietLeft)));
    const double right = std::ceil(std::max(ink.to, bar.to + quietZone.value_or(standardRight)));
    const double above = row.quietVertical - upright.from;
    width = right - left;
    height = above + upright.to + row.quietVertical;
    const auto place = [&](Point& point) { point = {point.x - left, point.y + above}; };
    for (Rectangle& side : bars) {
        side = {side.left - left, side.top + above, side.right - left, side.bottom + above};
    }
    for (PathStep& step : outline) {
        place(step.control);
        place(step.end);
    }
    for (PlacedGlyph& glyph : glyphs) {
        glyph.x -= left;
        glyph.y = above;
    }
    if (options.hasMarginMarks) PlaceMarginMarks(type, above);
    warnings = WarningsOf(type, {.xDimension = module * row.modulesPerX,
                                 .barHeight = barHeight,
                                 .length = (bar.to - bar.from) * module,
                                 .quietZone = quietZone,
                                 .standardQuietLeft = row.quietLeft,
                                 .standardQuietRight = standardRight,
                                 .reduction = reduction * module,
                                 .hasResolution = dotsPerInch.has_value()});
}

void BarcodeDrawing::PlaceBearerBars() {
    const double thickness = std::ceil(kBearerBar / module);
    const auto moved = [thickness](double& number) { number += thickness; };
    for (Rectangle& side : bars) {
        for (double* number : {&side.left, &side.top, &side.right, &side.bottom}) moved(*number);
    }
    for (PlacedGlyph& glyph : glyphs) {
        moved(glyph.x);
        moved(glyph.y);
    }
    const double right = width + 2 * thickness;
    const double bottom = height + 2 * thickness;
    bearerBars = {{0, 0, right, thickness},
                  {0, bottom - thickness, right, bottom},
                  {0, thickness, thickness, bottom - thickness},
                  {right - thickness, thickness, right, bottom - thickness}};
    width = right;
    height = bottom;
}

void BarcodeDrawing::PlaceMarginMarks(const BarcodeType& type, double baseline) {
    // The tip at the quiet zone's end; `side` is 1 for ">" and -1 for "<".
    const auto add = [&](double tip, double side) {
        const double middle = baseline - kMarkHeight / 2 - kMarkStroke;
        const double half = kMarkHeight / 2;
        const double back = tip - side * kMarkWidth;
        const double across = side * kMarkStroke * std::sqrt(2.0);
        const Point contour[]{
            {tip, middle},          {back, middle - half},          {back - across, middle - half},
            {tip - across, middle}, {back - across, middle + half}, {back, middle + half}};
        for (const Point& point : contour) {
            outline.push_back(
                {&point == contour ? PathStep::Kind::kMove : PathStep::Kind::kLine, point, point});
        }
        outline.push_back({PathStep::Kind::kLine, contour[0], contour[0]});
    };
    if (type.code == TypeCode::kEan8) add(0, -1);
    add(width, 1);
}

void BarcodeDrawing::PlaceText(const BarcodeType& type, const std::string& shownText) {
    textSize = (type.HasFixedHeight() ? kPostalTextSize : kTextSize) * type.dimensions.modulesPerX;
    text = textFace->Set(shownText, textSize);
    if (type.face == nullptr) {
        width = std::ceil(text.width + type.dimensions.quietLeft + type.dimensions.quietRight);
    } else if (text.width > width) {
        textSize *= width / text.width;
        text = textFace->Set(shownText, textSize);
    }
    textX = (width - text.width) / 2;
    textY = height + textSize * (kTextGap + kAscent);
    height = std::ceil(textY + textSize * kDescent);
    textFace->AddTo(outline, text, textSize, textX, textY);
}

void BarcodeDrawing::CheckSize() const {
    if (std::max(width, height) * module <= kLongestSide) return;
    throw DrawingFailure(Reason::kPage, {Millimetres(kLongestSide)});
}

Shapes BarcodeDrawing::InModules() const {
    Shapes shapes{module, width, height, bearerBars, outline};
    for (const Rectangle& bar : bars) {
        shapes.bars.push_back(
            {bar.left + reduction / 2, bar.top, bar.right - reduction / 2, bar.bottom});
    }
    return shapes;
}

Shapes BarcodeDrawing::InDots(double dotsPerModule) const {
    // All halves go the same way, also where the arithmetic is a little off.
    const auto whole = [](double dots) { return std::floor(dots + 0.5 + kSame); };
    const auto dots = [&](double modules) { return whole(modules * dotsPerModule); };
    const auto upTo = [&](double modules) { return std::ceil(modules * dotsPerModule - kSame); };
    Shapes shapes{module / dotsPerModule, upTo(width), upTo(height), {}, outline};
    for (const Rectangle& bar : bearerBars) {
        shapes.bars.push_back({dots(bar.left), dots(bar.top), dots(bar.right), dots(bar.bottom)});
    }
    for (const Rectangle& bar : bars) {
        const double left = dots(bar.left + reduction / 2);
        const double barWidth = std::max(1.0, dots(bar.right - bar.left - reduction));
        shapes.bars.push_back({left, dots(bar.top), left + barWidth, dots(bar.bottom)});
    }
    for (PathStep& step : shapes.outline) {
        for (Point* point : {&step.control, &step.end}) {
            *point = {point->x * dotsPerModule, point->y * dotsPerModule};
        }
    }
    return shapes;
}

Shapes BarcodeDrawing::Drawn() const {
    return dotsPerInch ? InDots(module * *dotsPerInch / kInch) : InModules();
}

}  // namespace linewright
