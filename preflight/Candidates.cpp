#include "preflight/Candidates.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace linewright {

namespace {

/** A cell's side, and how far along the rows cells may lie apart and still be neighbours. */
constexpr double kCell = 0.5;
constexpr double kReach = 3;
/** Of a cell's change along its rows, as a sum of grey steps a row; and how many times that across
 *  them. */
constexpr int kLeastChange = 100;
constexpr int kTimes = 6;
constexpr int kFewestCells = 6;
constexpr int kShortest = 4;
/** More boxes than any page of barcodes has; the largest are looked at. */
constexpr std::size_t kMostBoxes = 4000;

/** Which cells may be parts of bars, row by row. */
struct CellMap {
    int side = 1;
    int columns = 0;
    int rows = 0;
    std::vector<std::uint8_t> isBar;
};

CellMap CellsOf(const GreyRaster& picture, double pixelsPerMillimetre) {
    CellMap cells;
    cells.side = std::max(3, static_cast<int>(std::lround(kCell * pixelsPerMillimetre)));
    cells.columns = picture.width / cells.side;
    cells.rows = picture.height / cells.side;
    cells.isBar.assign(static_cast<std::size_t>(cells.columns) *
                           static_cast<std::size_t>(cells.rows),
                       0);
    for (int row = 0; row < cells.rows; ++row) {
        for (int column = 0; column < cells.columns; ++column) {
            const int left = column * cells.side;
            const int top = row * cells.side;
            const int right = std::min(left + cells.side, picture.width - 1);
            int along = 0;
            int across = 0;
            for (int y = top; y < top + cells.side; ++y) {
                const std::uint8_t* const here = picture.Row(y);
                const std::uint8_t* const below = picture.Row(std::min(y + 1, picture.height - 1));
                for (int x = left; x < right; ++x) {
                    along += std::abs(here[x + 1] - here[x]);
                    across += std::abs(below[x] - here[x]);
                }
            }
            const bool isBar = along >= kLeastChange * cells.side && along >= kTimes * across;
            cells.isBar[static_cast<std::size_t>(row) * static_cast<std::size_t>(cells.columns) +
                        static_cast<std::size_t>(column)] = isBar;
        }
    }
    return cells;
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
    std::vector<Run> runs;
    for (int row = 0; row < cells.rows; ++row) {
        const std::size_t firstOfRow = runs.size();
        for (int column = 0; column < cells.columns; ++column) {
            if (cells.isBar[static_cast<std::size_t>(row) *
                                static_cast<std::size_t>(cells.columns) +
                            static_cast<std::size_t>(column)] == 0) {
                continue;
            }
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
               (runs[above].row < runs[here].row - 1 || (runs[above].row == runs[here].row - 1 &&
                                                         runs[above].last < runs[here].first))) {
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
    const int reach =
        std::max(1, static_cast<int>(kReach * pixelsPerMillimetre / cells.side));
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
