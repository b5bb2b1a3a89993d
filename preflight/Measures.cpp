#include "preflight/Measures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numeric>

namespace linewright {

namespace {

/** A mean of what is added. */
struct Mean {
    double sum = 0;
    int count = 0;

    void Add(double value) {
        sum += value;
        ++count;
    }
    double Value() const { return count == 0 ? 0 : sum / count; }
};

/** The symbol's elements in its own direction. */
std::vector<Element> ElementsOf(const SymbolLine& line) {
    const auto first = line.scan.elements.begin() + static_cast<std::ptrdiff_t>(line.pattern.first);
    const auto count = static_cast<std::ptrdiff_t>(line.pattern.nominal.size());
    if (!line.pattern.isReversed) return {first, first + count};
    std::vector<Element> elements(first + 1 - count, first + 1);
    std::reverse(elements.begin(), elements.end());
    return elements;
}

/** What one line says. */
struct LineMeasures {
    double xDimension = 0;
    double wide = 0;
    double barGain = 0;
    double decodability = 1;
};

/** Symbologies whose elements are one to four modules wide. */
LineMeasures MeasureModules(const std::vector<Element>& elements, const SymbolPattern& pattern) {
    LineMeasures measures;
    double width = 0;
    for (const Element& element : elements) width += element.Width();
    const int modules = std::accumulate(pattern.nominal.begin(), pattern.nominal.end(), 0);
    const double x = width / modules;
    Mean gain;
    for (std::size_t place = 0; place < elements.size(); place += 2) {
        gain.Add(elements[place].Width() / x - pattern.nominal[place]);
    }
    measures.xDimension = x;
    measures.barGain = gain.Value();
    // A character's like edges are read to half a module.
    double farthest = 0;
    for (std::size_t place = 0; place + 1 < elements.size(); ++place) {
        const double like = (elements[place].Width() + elements[place + 1].Width()) / x;
        const int nominal = pattern.nominal[place] + pattern.nominal[place + 1];
        farthest = std::max(farthest, std::fabs(like - nominal));
    }
    measures.decodability = std::clamp(1 - 2 * farthest, 0.0, 1.0);
    return measures;
}

LineMeasures MeasureTwoWidths(const std::vector<Element>& elements, const SymbolPattern& pattern) {
    std::array<Mean, 2> narrow;
    Mean wide;
    double widestNarrow = 0;
    double narrowestWide = std::numeric_limits<double>::max();
    for (std::size_t place = 0; place < elements.size(); ++place) {
        const double width = elements[place].Width();
        if (pattern.nominal[place] == 1) {
            narrow[place % 2].Add(width);
            widestNarrow = std::max(widestNarrow, width);
        } else if (pattern.nominal[place] == 2) {
            wide.Add(width);
            narrowestWide = std::min(narrowestWide, width);
        }
    }
    LineMeasures measures;
    measures.xDimension = (narrow[0].Value() + narrow[1].Value()) / 2;
    measures.wide = wide.Value();
    measures.barGain = (narrow[0].Value() - narrow[1].Value()) / 2 / measures.xDimension;
    const double middle = (measures.xDimension + measures.wide) / 2;
    const double room = middle - measures.xDimension;
    measures.decodability =
        std::clamp(std::min(middle - widestNarrow, narrowestWide - middle) / room, 0.0, 1.0);
    return measures;
}

/** Bars whose heights alone say something. */
LineMeasures MeasureHeights(const std::vector<Element>& elements) {
    Mean bar;
    for (std::size_t place = 0; place < elements.size(); place += 2) {
        bar.Add(elements[place].Width());
    }
    return {.xDimension = bar.Value()};
}

LineMeasures MeasureLine(const std::vector<Element>& elements, const SymbolPattern& pattern) {
    if (pattern.hasHeights) return MeasureHeights(elements);
    return pattern.hasTwoWidths ? MeasureTwoWidths(elements, pattern)
                                : MeasureModules(elements, pattern);
}

/** 4 at the first limit or above, 0 below the last. */
double Level(double value, const std::array<double, 4>& limits) {
    const auto reached = std::find_if(limits.begin(), limits.end(),
                                      [value](double limit) { return value >= limit - 1e-9; });
    return static_cast<double>(limits.end() - reached);
}

/** One line after ISO/IEC 15416: the lowest of its parts' grades. */
GradeParts GradeLine(const LineScan& scan, const std::vector<Element>& elements,
                     double decodability) {
    GradeParts parts;
    parts.symbolContrast = scan.lightest - scan.darkest;
    parts.edgeContrast = parts.symbolContrast;
    for (std::size_t place = 0; place + 1 < elements.size(); ++place) {
        const Element& bar = elements[place + place % 2];
        const Element& space = elements[place + 1 - place % 2];
        parts.edgeContrast = std::min(parts.edgeContrast, space.lightest - bar.darkest);
    }
    double unevenness = 0;
    for (const Element& element : elements) unevenness = std::max(unevenness, element.unevenness);
    if (parts.symbolContrast > 0) {
        parts.modulation = parts.edgeContrast / parts.symbolContrast;
        parts.defects = unevenness / parts.symbolContrast;
    }
    parts.decodability = decodability;
    parts.grade = std::min({Level(parts.symbolContrast, {0.70, 0.55, 0.40, 0.20}),
                            Level(parts.modulation, {0.70, 0.60, 0.50, 0.40}),
                            Level(-parts.defects, {-0.15, -0.20, -0.25, -0.30}),
                            Level(decodability, {0.62, 0.50, 0.37, 0.25})});
    const bool isDarkEnough = scan.darkest <= scan.lightest / 2;
    if (!isDarkEnough || parts.edgeContrast < 0.15) parts.grade = 0;
    return parts;
}

double QuietZone(std::vector<double> widths, LineSource source) {
    if (source == LineSource::kShapes) return *std::min_element(widths.begin(), widths.end());
    const auto middle = widths.begin() + static_cast<std::ptrdiff_t>(widths.size() / 2);
    std::nth_element(widths.begin(), middle, widths.end());
    return *middle;
}

}  // namespace

Measures MeasureLines(const std::vector<SymbolLine>& lines, LineSource source) {
    Measures measures;
    Mean x;
    Mean wide;
    Mean gain;
    std::array<Mean, 6> parts;
    std::vector<double> quietLeft;
    std::vector<double> quietRight;
    quietLeft.reserve(lines.size());
    quietRight.reserve(lines.size());
    for (const SymbolLine& line : lines) {
        const std::vector<Element> elements = ElementsOf(line);
        const SymbolPattern& pattern = line.pattern;
        const LineMeasures measured = MeasureLine(elements, pattern);
        x.Add(measured.xDimension);
        wide.Add(measured.wide);
        gain.Add(measured.barGain);
        const std::size_t low =
            pattern.isReversed ? pattern.first + 1 - elements.size() : pattern.first;
        double before = line.scan.elements[low - 1].Width();
        double behind = line.scan.elements[low + elements.size()].Width();
        measures.begin = line.scan.elements[low].begin;
        measures.end = line.scan.elements[low + elements.size() - 1].end;
        if (pattern.isReversed) std::swap(before, behind);
        quietLeft.push_back(before);
        quietRight.push_back(behind);
        const GradeParts graded = GradeLine(line.scan, elements, measured.decodability);
        const std::array<double, 6> values{graded.symbolContrast, graded.edgeContrast,
                                           graded.modulation,     graded.defects,
                                           *graded.decodability,  graded.grade};
        for (std::size_t part = 0; part < parts.size(); ++part) parts[part].Add(values[part]);
        measures.barColour = line.scan.barColour;
        measures.spaceColour = line.scan.spaceColour;
    }
    measures.xDimension = x.Value();
    if (wide.Value() > 0) measures.ratio = wide.Value() / x.Value();
    measures.barGain = gain.Value();
    measures.quietLeft = QuietZone(std::move(quietLeft), source) / x.Value();
    measures.quietRight = QuietZone(std::move(quietRight), source) / x.Value();
    measures.isExact = source == LineSource::kShapes;
    GradeParts& mean = measures.parts.emplace();
    mean = {parts[0].Value(), parts[1].Value(), parts[2].Value(),
            parts[3].Value(), std::nullopt,     parts[5].Value()};
    if (source != LineSource::kFewPixels) {
        mean.decodability = parts[4].Value();
    } else {
        // The grade is that of the contrast alone.
        mean.grade = Level(mean.symbolContrast, {0.70, 0.55, 0.40, 0.20});
    }
    return measures;
}

}  // namespace linewright
