#include "preflight/BarGroups.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "preflight/LineScan.h"

namespace linewright {

namespace {

/** In mm. Lower bars are none that a scanner is held to. */
constexpr double kLowest = 1.2;
/** Sides within this are one. */
constexpr double kSame = 0.004;
/** Bars of paler ink are none. */
constexpr double kPalest = 0.8;
constexpr std::size_t kFewestSides = 18;
/** Farther apart than so many times the usual distance are two groups. */
constexpr double kFarApart = 8;
constexpr int kLines = 10;
/** What a side may be off where it is seen. */
constexpr double kSeenSlack = 0.02;
/** White beside a group that its picture has, in narrow elements, and its rows. */
constexpr double kQuiet = 12;
constexpr int kRows = 24;
constexpr double kMostPixelsWide = 20'000;

/** Sides by their tops and bottoms, in fifths of a millimetre. */
using SideMap = std::map<std::pair<long, long>, std::vector<double>>;

SideMap SidesOf(const VectorPage& page, bool isTurned) {
    SideMap sides;
    for (const PaintedShape& shape : page.shapes) {
        if (shape.isUnknown || shape.reflectance > kPalest) continue;
        for (const Area& rectangle : shape.rectangles) {
            const Area bar = isTurned ? rectangle.Turned() : rectangle;
            if (bar.Height() < kLowest || bar.Height() < bar.Width()) continue;
            auto& own = sides[{std::lround(bar.top * 5), std::lround(bar.bottom * 5)}];
            own.insert(own.end(), {bar.left, bar.right});
        }
    }
    return sides;
}

/** Sides at which two shapes abut are none. */
void DropCommonSides(std::vector<double>& sides) {
    std::sort(sides.begin(), sides.end());
    std::vector<double> kept;
    for (const double side : sides) {
        if (!kept.empty() && side - kept.back() < kSame) {
            kept.pop_back();
        } else {
            kept.push_back(side);
        }
    }
    sides = std::move(kept);
}

std::vector<double> DistancesOf(const std::vector<double>& sides) {
    std::vector<double> distances;
    distances.reserve(sides.size());
    for (std::size_t place = 0; place + 1 < sides.size(); ++place) {
        distances.push_back(sides[place + 1] - sides[place]);
    }
    return distances;
}

/** The value below which a part of the others lies. */
double Quantile(std::vector<double> values, double part) {
    const auto place = static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + place, values.end());
    return values[static_cast<std::size_t>(place)];
}

/** Whether distances are those of a symbol's elements: neither a grid of lines nor a table. */
bool AreElements(const std::vector<double>& distances) {
    double least[2] = {1e9, 1e9};
    double most[2] = {0, 0};
    for (std::size_t place = 0; place < distances.size(); ++place) {
        least[place % 2] = std::min(least[place % 2], distances[place]);
        most[place % 2] = std::max(most[place % 2], distances[place]);
    }
    const bool isEven = most[0] < 1.2 * least[0] && most[1] < 1.2 * least[1];
    return !isEven && Quantile(distances, 0.8) < 6 * Quantile(distances, 0.1);
}

/** Sides of bars that begin with a group's and reach farther down. */
std::vector<double> LongerSides(const SideMap& all, const SideMap::key_type& ends) {
    std::vector<double> sides;
    for (auto row = all.upper_bound(ends); row != all.end() && row->first.first == ends.first;
         ++row) {
        sides.insert(sides.end(), row->second.begin(), row->second.end());
    }
    std::sort(sides.begin(), sides.end());
    return sides;
}

/** Goes on from a group's ends as long as the next longer bar is not far. */
void ReachOut(BarGroup& group, const std::vector<double>& longer) {
    const double far = kFarApart * group.narrow;
    group.left = group.area.left;
    group.right = group.area.right;
    for (const double side : longer) {
        if (side > group.right && side - group.right < far) group.right = side;
    }
    for (const double side : std::vector<double>(longer.rbegin(), longer.rend())) {
        if (side < group.left && group.left - side < far) group.left = side;
    }
}

}  // namespace

std::vector<BarGroup> FindBarGroups(const VectorPage& page, bool isTurned) {
    std::vector<BarGroup> groups;
    SideMap all = SidesOf(page, isTurned);
    for (auto& [ends, sides] : all) {
        DropCommonSides(sides);
        if (sides.size() < kFewestSides) continue;
        const double usual = Quantile(DistancesOf(sides), 0.5);
        for (std::size_t first = 0; first < sides.size();) {
            std::size_t last = first;
            while (last + 1 < sides.size() && sides[last + 1] - sides[last] < kFarApart * usual) {
                ++last;
            }
            BarGroup group;
            group.sides.assign(sides.begin() + static_cast<std::ptrdiff_t>(first),
                               sides.begin() + static_cast<std::ptrdiff_t>(last) + 1);
            first = last + 1;
            if (group.sides.size() < kFewestSides || group.sides.size() % 2 != 0) continue;
            const std::vector<double> distances = DistancesOf(group.sides);
            if (!AreElements(distances)) continue;
            group.narrow = Quantile(distances, 0.2);
            group.area = {group.sides.front(), static_cast<double>(ends.first) / 5,
                          group.sides.back(), static_cast<double>(ends.second) / 5};
            ReachOut(group, LongerSides(all, ends));
            groups.push_back(std::move(group));
        }
    }
    return groups;
}

double SeenPart(const VectorPage& page, const BarGroup& group, bool isTurned) {
    std::size_t seen = 0;
    for (int line = 0; line < kLines; ++line) {
        const double y = group.area.top + group.area.Height() * (line + 0.5) / kLines;
        const std::vector<Stretch> stretches =
            page.Along(y, group.area.left - 1, group.area.right + 1, isTurned);
        std::size_t place = 0;
        for (const double side : group.sides) {
            while (place < stretches.size() && stretches[place].end < side - kSeenSlack) ++place;
            if (place + 1 >= stretches.size()) break;
            const Stretch& here = stretches[place];
            const Stretch& next = stretches[place + 1];
            const bool isSide = std::fabs(here.end - side) <= kSeenSlack && !here.isUnknown &&
                                !next.isUnknown &&
                                std::fabs(here.reflectance - next.reflectance) > 0.1;
            seen += isSide ? 1 : 0;
        }
    }
    return static_cast<double>(seen) / static_cast<double>(kLines * group.sides.size());
}

std::optional<GreyRaster> PictureOf(const VectorPage& page, const BarGroup& group, bool isTurned,
                                    bool isAlone) {
    const double pixels = kGroupPixels / group.narrow;
    const double begin = group.area.left - kQuiet * group.narrow;
    const double end = group.area.right + kQuiet * group.narrow;
    if (!((end - begin) * pixels < kMostPixelsWide)) return std::nullopt;
    GreyRaster picture{static_cast<int>((end - begin) * pixels), kRows, {}};
    const double middle = (group.area.top + group.area.bottom) / 2;
    const std::vector<Stretch> stretches = page.Along(middle, begin, end, isTurned);
    std::size_t place = 0;
    std::vector<std::uint8_t> row;
    row.reserve(static_cast<std::size_t>(picture.width));
    for (int x = 0; x < picture.width; ++x) {
        const double position = begin + (x + 0.5) / pixels;
        while (place + 1 < stretches.size() && stretches[place].end < position) ++place;
        const bool isBeside = position < group.left || position > group.right;
        const double reflectance = isAlone && isBeside ? 1 : stretches[place].reflectance;
        row.push_back(static_cast<std::uint8_t>(std::lround(255 * reflectance)));
    }
    for (int y = 0; y < kRows; ++y) {
        picture.pixels.insert(picture.pixels.end(), row.begin(), row.end());
    }
    return picture;
}

}  // namespace linewright
