#include "preflight/VectorPage.h"

#include <algorithm>
#include <iterator>

namespace linewright {

namespace {

struct Crossing {
    double x;
    int direction;
};

/** Where an outline meets the line at y, from left to right. */
void FindCrossings(const PaintedShape& shape, double y, bool isTurned,
                   std::vector<Crossing>& crossings) {
    crossings.clear();
    for (const Segment& segment : shape.outline) {
        Point from = segment.from;
        Point to = segment.to;
        if (isTurned) {
            std::swap(from.x, from.y);
            std::swap(to.x, to.y);
        }
        if ((from.y <= y) == (to.y <= y)) continue;
        const double x = from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x);
        crossings.push_back({x, from.y < to.y ? 1 : -1});
    }
    std::sort(crossings.begin(), crossings.end(),
              [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
}

/** A part of the line that a shape covers. */
struct Paint {
    double begin;
    double end;
    const PaintedShape* shape;
};

void Cover(Stretch& stretch, const PaintedShape& shape) {
    stretch.reflectance =
        shape.opacity * shape.reflectance + (1 - shape.opacity) * stretch.reflectance;
    if (shape.opacity >= 0.5) stretch.colour = shape.colour;
    stretch.isUnknown = shape.isUnknown || (stretch.isUnknown && shape.opacity < 1);
}

}  // namespace

std::vector<Stretch> VectorPage::Along(double y, double begin, double end, bool isTurned) const {
    std::vector<Paint> paints;
    std::vector<double> cuts{begin, end};
    std::vector<Crossing> crossings;
    for (const PaintedShape& shape : shapes) {
        const Area area = isTurned ? shape.area.Turned() : shape.area;
        if (y < area.top || y >= area.bottom || area.right <= begin || area.left >= end) continue;
        FindCrossings(shape, y, isTurned, crossings);
        int winding = 0;
        for (std::size_t place = 0; place + 1 < crossings.size(); ++place) {
            winding += shape.isEvenOdd ? 1 : crossings[place].direction;
            const bool isInside = shape.isEvenOdd ? winding % 2 != 0 : winding != 0;
            const double left = std::max({crossings[place].x, begin, area.left});
            const double right = std::min({crossings[place + 1].x, end, area.right});
            if (!isInside || left >= right) continue;
            paints.push_back({left, right, &shape});
            cuts.insert(cuts.end(), {left, right});
        }
    }
    std::sort(cuts.begin(), cuts.end());
    cuts.erase(std::unique(cuts.begin(), cuts.end()), cuts.end());
    std::vector<Stretch> stretches;
    stretches.reserve(cuts.size());
    for (std::size_t place = 0; place + 1 < cuts.size(); ++place) {
        stretches.push_back({.begin = cuts[place], .end = cuts[place + 1]});
    }
    for (const Paint& paint : paints) {
        auto stretch = std::lower_bound(
            stretches.begin(), stretches.end(), paint.begin,
            [](const Stretch& each, double position) { return each.begin < position; });
        for (; stretch != stretches.end() && stretch->begin < paint.end; ++stretch) {
            Cover(*stretch, *paint.shape);
        }
    }
    return stretches;
}

}  // namespace linewright
