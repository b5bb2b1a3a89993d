#include "preflight/LineScan.h"

#include <algorithm>
#include <cmath>

namespace linewright {

namespace {

/** Between shapes that abut, rounding leaves less than this. */
constexpr double kSliver = 0.008;
/** A part without bars and spaces. */
constexpr double kLeastContrast = 0.05;

/** Joins what is the same on both sides of a sliver, and puts a space at either end. */
class ElementList {
  public:
    void Add(const Element& element, bool isBar) {
        if (elements.empty() && isBar) elements.push_back({element.begin, element.begin});
        const bool isLastBar = elements.size() % 2 == 0;
        if (!elements.empty() && isLastBar == isBar) {
            elements.back().end = element.end;
            return;
        }
        DropSliver();
        if (!elements.empty() && (elements.size() % 2 == 0) == isBar) {
            elements.back().end = element.end;
        } else {
            elements.push_back(element);
        }
    }

    std::vector<Element> Finish() {
        if (!elements.empty() && elements.size() % 2 == 0) {
            elements.push_back({elements.back().end, elements.back().end});
        }
        return std::move(elements);
    }

  private:
    void DropSliver() {
        if (elements.size() < 2 || elements.back().Width() >= kSliver) return;
        const double end = elements.back().end;
        elements.pop_back();
        elements.back().end = end;
    }

    std::vector<Element> elements;
};

/** A point of a line, or the middle of a part of it. */
struct Sample {
    double position;
    double reflectance;
};

/** The highest of what lies between two lower ones, above the higher of these. */
double HighestBump(const std::vector<double>& values) {
    std::vector<double> lowestBehind(values.size());
    double lowest = 1;
    for (std::size_t place = values.size(); place-- > 0;) {
        lowest = std::min(lowest, values[place]);
        lowestBehind[place] = lowest;
    }
    double bump = 0;
    lowest = 1;
    for (std::size_t place = 0; place < values.size(); ++place) {
        lowest = std::min(lowest, values[place]);
        bump = std::max(bump, values[place] - std::max(lowest, lowestBehind[place]));
    }
    return bump;
}

void SetReflectances(std::vector<Element>& elements, const std::vector<Sample>& samples) {
    auto sample = samples.begin();
    std::vector<double> inside;
    for (std::size_t place = 0; place < elements.size(); ++place) {
        Element& element = elements[place];
        inside.clear();
        while (sample != samples.end() && sample->position < element.begin) ++sample;
        for (; sample != samples.end() && sample->position < element.end; ++sample) {
            element.darkest = std::min(element.darkest, sample->reflectance);
            element.lightest = std::max(element.lightest, sample->reflectance);
            const bool isBar = place % 2 != 0;
            inside.push_back(isBar ? sample->reflectance : 1 - sample->reflectance);
        }
        element.unevenness = HighestBump(inside);
    }
}

}  // namespace

LineScan ScanStretches(const std::vector<Stretch>& stretches, double begin, double end) {
    LineScan scan;
    for (const Stretch& stretch : stretches) {
        if (stretch.end <= begin || stretch.begin >= end) continue;
        scan.isUnknown = scan.isUnknown || stretch.isUnknown;
        if (stretch.end - stretch.begin < kSliver) continue;
        if (stretch.reflectance < scan.darkest) scan.barColour = stretch.colour;
        if (stretch.reflectance > scan.lightest) scan.spaceColour = stretch.colour;
        scan.darkest = std::min(scan.darkest, stretch.reflectance);
        scan.lightest = std::max(scan.lightest, stretch.reflectance);
    }
    if (scan.lightest - scan.darkest < kLeastContrast) return scan;
    const double threshold = (scan.lightest + scan.darkest) / 2;
    ElementList elements;
    std::vector<Sample> samples;
    samples.reserve(stretches.size());
    for (const Stretch& stretch : stretches) {
        elements.Add({stretch.begin, stretch.end}, stretch.reflectance < threshold);
        if (stretch.end - stretch.begin < kSliver) continue;
        samples.push_back({(stretch.begin + stretch.end) / 2, stretch.reflectance});
    }
    scan.elements = elements.Finish();
    SetReflectances(scan.elements, samples);
    return scan;
}

LineScan ScanPixels(const std::uint8_t* pixels, int count, double origin,
                    double pixelsPerMillimetre, double begin, double end) {
    LineScan scan;
    const auto placeOf = [&](double position) {
        return static_cast<int>(
            std::lround(std::clamp((position - origin) * pixelsPerMillimetre, 0.0, count * 1.0)));
    };
    const int first = placeOf(begin);
    const int last = placeOf(end);
    if (first >= last) return scan;
    const auto [dark, light] = std::minmax_element(pixels + first, pixels + last);
    scan.darkest = *dark / 255.0;
    scan.lightest = *light / 255.0;
    if (scan.lightest - scan.darkest < kLeastContrast) return scan;
    const double threshold = (*dark + *light) / 2.0;
    ElementList elements;
    Element element{origin, origin};
    std::vector<Sample> samples;
    samples.reserve(static_cast<std::size_t>(count));
    bool isBar = pixels[0] < threshold;
    for (int place = 0; place < count; ++place) {
        const bool isDark = pixels[place] < threshold;
        if (isDark != isBar) {
            // Between the middles of two pixels.
            const double step = pixels[place] - pixels[place - 1];
            const double edge = place - 0.5 + (threshold - pixels[place - 1]) / step;
            element.end = origin + edge / pixelsPerMillimetre;
            elements.Add(element, isBar);
            element = {element.end, element.end};
            isBar = isDark;
        }
        samples.push_back({origin + (place + 0.5) / pixelsPerMillimetre, pixels[place] / 255.0});
    }
    element.end = origin + count / pixelsPerMillimetre;
    elements.Add(element, isBar);
    scan.elements = elements.Finish();
    SetReflectances(scan.elements, samples);
    return scan;
}

}  // namespace linewright
