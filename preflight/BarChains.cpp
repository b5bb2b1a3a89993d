#include "preflight/BarChains.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace linewright {

namespace {

/** Sizes of a bar in mm, far beyond what a post office takes. */
constexpr double kNarrowest = 0.15;
constexpr double kWidest = 1.5;
constexpr double kLowest = 0.5;
constexpr double kHighest = 15;
/** Of its box that a bar fills, also one that leans. */
constexpr double kFilled = 0.5;

/** Dark pixels of a row that stand side by side. */
struct DarkRun {
    int row;
    int first;
    int last;
    std::size_t part;
};

struct Part {
    PixelBox box{1 << 30, 1 << 30, 0, 0};
    int pixels = 0;
};

std::size_t PartOf(std::vector<DarkRun>& runs, std::size_t place) {
    while (runs[place].part != place) {
        runs[place].part = runs[runs[place].part].part;
        place = runs[place].part;
    }
    return place;
}

std::vector<DarkRun> DarkRunsOf(const GreyRaster& picture) {
    std::vector<DarkRun> runs;
    const auto [darkest, lightest] =
        std::minmax_element(picture.pixels.begin(), picture.pixels.end());
    const int threshold = (*darkest + *lightest) / 2;
    std::size_t above = 0;
    for (int y = 0; y < picture.height; ++y) {
        const std::size_t firstOfRow = runs.size();
        for (int x = 0; x < picture.width; ++x) {
            if (picture.At(x, y) >= threshold) continue;
            const int first = x;
            while (x + 1 < picture.width && picture.At(x + 1, y) < threshold) ++x;
            runs.push_back({y, first, x, runs.size()});
        }
        std::size_t other = above;
        for (std::size_t here = firstOfRow; here < runs.size(); ++here) {
            while (other < firstOfRow && runs[other].last < runs[here].first) ++other;
            for (std::size_t each = other; each < firstOfRow && runs[each].first <= runs[here].last;
                 ++each) {
                const std::size_t part = PartOf(runs, each);
                runs[PartOf(runs, here)].part = part;
            }
        }
        above = firstOfRow;
    }
    return runs;
}

std::vector<PixelBox> BarsOf(const GreyRaster& picture, double pixelsPerMillimetre) {
    std::vector<DarkRun> runs = DarkRunsOf(picture);
    std::vector<Part> parts(runs.size());
    for (std::size_t place = 0; place < runs.size(); ++place) {
        const DarkRun& run = runs[place];
        Part& part = parts[PartOf(runs, place)];
        part.pixels += run.last + 1 - run.first;
        part.box.left = std::min(part.box.left, run.first);
        part.box.right = std::max(part.box.right, run.last + 1);
        part.box.top = std::min(part.box.top, run.row);
        part.box.bottom = std::max(part.box.bottom, run.row + 1);
    }
    std::vector<PixelBox> bars;
    bars.reserve(parts.size());
    for (const Part& part : parts) {
        const double width = part.box.Width() / pixelsPerMillimetre;
        const double height = part.box.Height() / pixelsPerMillimetre;
        if (part.pixels == 0 || width < kNarrowest || width > kWidest || height < kLowest ||
            height > kHighest || height < 1.5 * width ||
            part.pixels < kFilled * part.box.Width() * part.box.Height()) {
            continue;
        }
        bars.push_back(part.box);
    }
    std::sort(bars.begin(), bars.end(),
              [](const PixelBox& a, const PixelBox& b) { return a.left < b.left; });
    return bars;
}

double Middle(const PixelBox& bar) {
    return (bar.left + bar.right) / 2.0;
}

}  // namespace

std::vector<BarChain> FindBarChains(const GreyRaster& picture, double pixelsPerMillimetre) {
    if (picture.pixels.empty()) return {};
    const std::vector<PixelBox> bars = BarsOf(picture, pixelsPerMillimetre);
    std::vector<bool> isTaken(bars.size());
    std::vector<BarChain> chains;
    chains.reserve(bars.size());
    for (std::size_t start = 0; start < bars.size(); ++start) {
        if (isTaken[start]) continue;
        BarChain chain{bars[start]};
        double pitch = 0;
        for (std::size_t next = start + 1; next < bars.size(); ++next) {
            const PixelBox& last = chain.back();
            const PixelBox& bar = bars[next];
            const double step = Middle(bar) - Middle(last);
            if (step > 4.0 * chain.front().Width() + 2) break;
            const bool isBeside = bar.top < last.bottom && last.top < bar.bottom;
            const bool isAlike =
                std::abs(bar.Width() - chain.front().Width()) <= 0.35 * chain.front().Width() + 1;
            if (isTaken[next] || !isBeside || !isAlike || step < 1.2 * bar.Width()) continue;
            if (pitch > 0 && std::fabs(step - pitch) > 0.2 * pitch + 1) continue;
            pitch = (Middle(bar) - Middle(chain.front())) / static_cast<double>(chain.size());
            chain.push_back(bar);
            isTaken[next] = true;
        }
        chains.push_back(std::move(chain));
    }
    return chains;
}

}  // namespace linewright
