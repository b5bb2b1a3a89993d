#include "preflight/Candidates.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numeric>

namespace linewright {

namespace {

/** A cell's side, and how far along the rows cells may lie apart and still be neighbours. */
constexpr double kCell = 0.5;
constexpr double kReach = 3;
/** Of a cell's change along its rows, as a sum of grey steps a row; and how many times that across
 *  them. */
constexpr int kLeastChange = 100;
constexpr int kTimes = 6;
/** What of the paper's own grain is put down to grain. */
constexpr int kGrain = 2;
constexpr int kFewestCells = 6;
constexpr int kShortest = 4;
/** More boxes than any page of barcodes has; the largest are looked at. */
constexpr std::size_t kMostBoxes = 4000;

/** How much changes in cells, row by row: along their rows, of the columns' sums, and across them,
 *  of the rows' sums, which makes little of grain. */
struct CellMap {
    int side = 1;
    int columns = 0;
    int rows = 0;
    std::vector<int> along;
    std::vector<int> across;

    std::size_t PlaceOf(int row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(column);
    }
    /** Across cells of bare paper, of which a page has the most. */
    int Grain() const {
        std::vector<int> sorted = across;
        if (sorted.empty()) return 0;
        const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
        std::nth_element(sorted.begin(), middle, sorted.end());
        return *middle;
    }
};

CellMap CellsOf(const GreyRaster& picture, double pixelsPerMillimetre) {
    CellMap cells;
    cells.side = std::max(3, static_cast<int>(std::lround(kCell * pixelsPerMillimetre)));
    cells.columns = picture.width / cells.side;
    cells.rows = picture.height / cells.side;
    for (int row = 0; row < cells.rows; ++row) {
        std::vector<int> columnSums(static_cast<std::size_t>(picture.width));
        std::vector<int> changes(static_cast<std::size_t>(cells.columns));
        std::vector<int> lastSums;
        for (int y = row * cells.side; y < (row + 1) * cells.side; ++y) {
            const std::uint8_t* const pixels = picture.Row(y);
            for (std::size_t x = 0; x < columnSums.size(); ++x) columnSums[x] += pixels[x];
            std::vector<int> sums(changes.size());
            for (std::size_t column = 0; column < sums.size(); ++column) {
                const std::uint8_t* const begin =
                    pixels + column * static_cast<std::size_t>(cells.side);
                sums[column] = std::accumulate(begin, begin + cells.side, 0);
                if (!lastSums.empty()) changes[column] += std::abs(sums[column] - lastSums[column]);
            }
            lastSums = std::move(sums);
        }
        for (int column = 0; column < cells.columns; ++column) {
            int along = 0;
            const int right = std::min((column + 1) * cells.side, picture.width - 1);
            for (int x = column * cells.side; x < right; ++x) {
                const auto place = static_cast<std::size_t>(x);
                along += std::abs(columnSums[place + 1] - columnSums[place]);
            }
            cells.along.push_back(along);
        }
        cells.across.insert(cells.across.end(), changes.begin(), changes.end());
    }
    return cells;
}

/** Which cells may be parts of bars. */
std::vector<bool> BarCells(const CellMap& cells) {
    const int grain = kGrain * cells.Grain();
    std::vector<bool> areBars;
    areBars.reserve(cells.along.size());
    for (std::size_t place = 0; place < cells.along.size(); ++place) {
        const int along = cells.along[place] - grain;
        const int across = std::max(0, cells.across[place] - grain);
        areBars.push_back(along >= kLeastChange * cells.side && along >= kTimes * across);
    }
    return areBars;
}

/** Cells of a row that belong together, and the group of such that they are in. */
struct Run {
    int row;
    int first;
    int last;
    std::size_t group;
    int cells;
};

std::size_t GroupOf(std::vector<Run>& runs, std::size_t place) {
    while (runs[place].group != place) {
        runs[place].group = runs[runs[place].group].group;
        place = runs[place].group;
    }
    return place;
}

std::vector<Run> RunsOf(const CellMap& cells, int reach) {
    const std::vector<bool> areBars = BarCells(cells);
    std::vector<Run> runs;
    for (int row = 0; row < cells.rows; ++row) {
        const std::size_t firstOfRow = runs.size();
        for (int column = 0; column < cells.columns; ++column) {
            if (!areBars[cells.PlaceOf(row, column)]) continue;
            if (runs.size() > firstOfRow && column - runs.back().last <= reach) {
                runs.back().last = column;
                ++runs.back().cells;
            } else {
                runs.push_back({row, column, column, runs.size(), 1});
            }
        }
    }
    return runs;
}

/** Puts runs of neighbouring rows that share a column into one group. */
void Join(std::vector<Run>& runs) {
    std::size_t above = 0;
    for (std::size_t here = 0; here < runs.size(); ++here) {
        while (above < here &&
               (runs[above].row < runs[here].row - 1 ||
                (runs[above].row == runs[here].row - 1 && runs[above].last < runs[here].first))) {
            ++above;
        }
        for (std::size_t other = above; other < here && runs[other].row == runs[here].row - 1 &&
                                        runs[other].first <= runs[here].last;
             ++other) {
            const std::size_t group = GroupOf(runs, other);
            runs[GroupOf(runs, here)].group = group;
        }
    }
}

}  // namespace

std::vector<PixelBox> FindCandidates(const GreyRaster& picture, double pixelsPerMillimetre) {
    if (picture.width < 8 || picture.height < 8) return {};
    const CellMap cells = CellsOf(picture, pixelsPerMillimetre);
    const int reach = std::max(1, static_cast<int>(kReach * pixelsPerMillimetre / cells.side));
    std::vector<Run> runs = RunsOf(cells, reach);
    Join(runs);
    struct Group {
        PixelBox box{1 << 30, 1 << 30, 0, 0};
        int cells = 0;
    };
    std::vector<Group> groups(runs.size());
    for (std::size_t place = 0; place < runs.size(); ++place) {
        Group& group = groups[GroupOf(runs, place)];
        group.cells += runs[place].cells;
        group.box.left = std::min(group.box.left, runs[place].first * cells.side);
        group.box.right = std::max(group.box.right, (runs[place].last + 1) * cells.side);
        group.box.top = std::min(group.box.top, runs[place].row * cells.side);
        group.box.bottom = std::max(group.box.bottom, (runs[place].row + 1) * cells.side);
    }
    std::erase_if(groups, [&cells](const Group& group) {
        return group.cells < kFewestCells || group.box.Width() < kShortest * cells.side;
    });
    std::sort(groups.begin(), groups.end(),
              [](const Group& a, const Group& b) { return a.cells > b.cells; });
    if (groups.size() > kMostBoxes) groups.resize(kMostBoxes);
    std::vector<PixelBox> boxes;
    boxes.reserve(groups.size());
    for (const Group& group : groups) boxes.push_back(group.box);
    return boxes;
}

GreyRaster Cropped(const GreyRaster& picture, const PixelBox& box) {
    GreyRaster crop{.width = box.Width(), .height = box.Height(), .pixels = {}};
    crop.pixels.assign(static_cast<std::size_t>(crop.width) * static_cast<std::size_t>(crop.height),
                       255);
    const int left = std::max(box.left, 0);
    const int right = std::min(box.right, picture.width);
    for (int y = std::max(box.top, 0); y < std::min(box.bottom, picture.height); ++y) {
        if (left < right) {
            std::copy(picture.Row(y) + left, picture.Row(y) + right,
                      crop.Row(y - box.top) + left - box.left);
        }
    }
    return crop;
}

GreyRaster Turned(const GreyRaster& picture) {
    GreyRaster turned{.width = picture.height, .height = picture.width, .pixels = {}};
    turned.pixels.resize(picture.pixels.size());
    // In blocks, so that what is read and what is written stay near.
    constexpr int kBlock = 32;
    for (int top = 0; top < picture.height; top += kBlock) {
        for (int left = 0; left < picture.width; left += kBlock) {
            const int bottom = std::min(top + kBlock, picture.height);
            const int right = std::min(left + kBlock, picture.width);
            for (int y = top; y < bottom; ++y) {
                for (int x = left; x < right; ++x) turned.Row(x)[y] = picture.At(x, y);
            }
        }
    }
    return turned;
}

}  // namespace linewright
