#include <gtest/gtest.h>

#include "render/Export.h"
#include "tests/RandomData.h"
#include "tests/TestHost.h"
#include "tests/ZintSymbol.h"
#include "tests/render/Drawn.h"

// The symbologies that no scanner here knows: bars are measured in the picture and compared with
// another encoder's symbol and with the dimensions of the standards.

namespace linewright {

namespace {

constexpr int kPixels = 4;
constexpr std::size_t kPostalSymbols = LINEWRIGHT_SYMBOLS;

/** A bar in the picture; pixels from the upper left corner. Its ends may lie within pixels, which
 *  are grey then. */
struct Bar {
    int left, right;
    double top, bottom;
};

/** The ink of a column from 0 to 1, row by row. */
std::vector<double> ColumnOf(const GreyRaster& picture, int x) {
    std::vector<double> column;
    column.reserve(static_cast<std::size_t>(picture.height));
    for (int y = 0; y < picture.height; ++y) column.push_back(1 - picture.At(x, y) / 255.0);
    return column;
}

/** The one stretch of ink in a column: all black but for its two ends. */
Bar BarIn(const std::vector<double>& column) {
    const auto isInk = [](double ink) { return ink > 0; };
    const auto first = std::find_if(column.begin(), column.end(), isInk);
    const auto last = std::find_if(column.rbegin(), column.rend(), isInk).base() - 1;
    for (auto ink = first + 1; ink < last; ++ink) EXPECT_EQ(*ink, 1) << "a bar with a hole";
    return {0, 0, static_cast<double>(first - column.begin()) + 1 - *first,
            static_cast<double>(last - column.begin()) + *last};
}

/** The bars from left to right, each a rectangle whose sides lie on whole pixels. */
std::vector<Bar> BarsOf(const GreyRaster& picture) {
    std::vector<Bar> bars;
    const std::vector<double> white(static_cast<std::size_t>(picture.height), 0.0);
    for (int x = 0; x < picture.width;) {
        const std::vector<double> column = ColumnOf(picture, x);
        const int left = x++;
        if (column == white) continue;
        Bar bar = BarIn(column);
        bar.left = left;
        while (x < picture.width && ColumnOf(picture, x) == column) ++x;
        bar.right = x;
        EXPECT_TRUE(x == picture.width || ColumnOf(picture, x) == white) << "no rectangle";
        bars.push_back(bar);
    }
    return bars;
}

class MeasureTest : public testing::Test {
  protected:
    /** The bars of an encoded symbol in inches, y upwards from the lowest bar's foot. */
    struct Inches {
        double left, width, foot, top;
    };

    std::vector<Inches> Measured(std::string_view type, const std::string& data,
                                 bool isCheckWanted) {
        const BarcodeDrawing drawing = Drawn(type, Encoded(type, data, isCheckWanted, 2.0));
        const GreyRaster picture = drawing.Raster(kPixels);
        const double inch = DotsPerInch(drawing, kPixels);
        const std::vector<Bar> bars = BarsOf(picture);
        double lowest = 0;
        for (const Bar& bar : bars) lowest = std::max(lowest, bar.bottom);
        std::vector<Inches> measured;
        measured.reserve(bars.size());
        for (const Bar& bar : bars) {
            measured.push_back({bar.left / inch, (bar.right - bar.left) / inch,
                                (lowest - bar.bottom) / inch, (lowest - bar.top) / inch});
        }
        quietLeft = bars.empty() ? 0 : bars.front().left / inch;
        quietRight = bars.empty() ? 0 : (picture.width - bars.back().right) / inch;
        return measured;
    }

    TestHost host;
    RandomData random{30};
    double quietLeft = 0;
    double quietRight = 0;
};

constexpr double kNear = 0.0005;

/** Bar width and pitch of USPS-B-3200 and of Domestic Mail Manual 708.4: 0.020 inch, 20 to 24 bars
 * to the inch, and 0.125 inch clear at both sides. */
#define EXPECT_POSTAL_PITCH(bars)                                                    \
    for (std::size_t i = 0; i < (bars).size(); ++i) {                                \
        ASSERT_NEAR((bars)[i].width, 0.020, kNear);                                  \
        ASSERT_NEAR((bars)[i].left - (bars)[0].left, static_cast<double>(i) / 22.26, \
                    0.0005 * static_cast<double>(i + 1));                            \
    }                                                                                \
    EXPECT_GE(quietLeft, 0.125);                                                     \
    EXPECT_GE(quietRight, 0.125)

/** Whether bars of libzint's row `row` are there, bar by bar; it puts one in every second module.
 */
std::string ZintBars(const std::string& row) {
    std::string bars;
    for (std::size_t module = 0; module < row.size(); module += 2) bars += row[module];
    return bars;
}

TEST_F(MeasureTest, IntelligentMail) {
    constexpr std::size_t kRouting[]{0, 5, 9, 11};
    for (std::size_t count = 0; count < kPostalSymbols; ++count) {
        const std::string data = random.Text("0123456789", 1) + random.Text("01234", 1) +
                                 random.Digits(18) + random.Digits(kRouting[count % 4]);
        const auto bars = Measured("_BARCODE_USPS_IM_", data, false);
        ASSERT_EQ(bars.size(), 65U);
        EXPECT_POSTAL_PITCH(bars);
        const std::string zint =
            data.size() == 20 ? data : data.substr(0, 20) + "-" + data.substr(20);
        const auto rows = ZintRows(BARCODE_USPS_IMAIL, zint);
        ASSERT_EQ(rows.size(), 3U);
        for (std::size_t i = 0; i < bars.size(); ++i) {
            const bool ascends = ZintBars(rows[0])[i] == '1';
            const bool descends = ZintBars(rows[2])[i] == '1';
            // Full bar 0.145, tracker 0.048 in its middle.
            ASSERT_NEAR(bars[i].top, ascends ? 0.145 : 0.0965, kNear) << data << " bar " << i;
            ASSERT_NEAR(bars[i].foot, descends ? 0 : 0.0485, kNear) << data << " bar " << i;
        }
    }
}

TEST_F(MeasureTest, Postnet) {
    constexpr std::size_t kLengths[]{5, 9, 11};
    for (std::size_t count = 0; count < kPostalSymbols; ++count) {
        const std::string data = random.Digits(kLengths[count % 3]);
        const bool isClassic = count % 2 == 0;
        const auto bars =
            Measured(isClassic ? "_BARCODE_POSTNET_" : "_QVT_BARCODE_POSTNET_", data, true);
        ASSERT_EQ(bars.size(), 5 * (data.size() + 1) + 2);
        EXPECT_POSTAL_PITCH(bars);
        const auto rows = ZintRows(BARCODE_POSTNET, data);
        ASSERT_EQ(rows.size(), 2U);
        for (std::size_t i = 0; i < bars.size(); ++i) {
            ASSERT_NEAR(bars[i].top, ZintBars(rows[0])[i] == '1' ? 0.125 : 0.050, kNear) << data;
            ASSERT_EQ(bars[i].foot, 0) << data;
        }
    }
}

/** Elements as "n" and "w", bars and spaces in turn, of modules "1" and "0". */
std::string ElementsOf(const std::string& modules) {
    std::string elements;
    for (std::size_t i = 0; i < modules.size();) {
        const std::size_t end =
            std::min(modules.find(modules[i] == '1' ? '0' : '1', i), modules.size());
        elements += end - i == 1 ? 'n' : 'w';
        i = end;
    }
    return elements;
}

TEST_F(MeasureTest, MsiPlessey) {
    for (std::size_t count = 0; count < kPostalSymbols; ++count) {
        const std::string data = random.Digits(random.Number(1, 17));
        const bool isClassic = count % 2 == 0;
        const double ratio = isClassic ? 3 : std::array{2.0, 2.5, 3.0}[count % 3];
        const bool isCheckWanted = isClassic || count % 4 == 1;
        const std::string_view type = isClassic ? "_BARCODE_MSIPLESSEY_" : "_QVT_BARCODE_MSI_";
        const BarcodeDrawing drawing = Drawn(type, Encoded(type, data, isCheckWanted, ratio));
        const GreyRaster picture = drawing.Raster(kPixels);
        const std::vector<Bar> bars = BarsOf(picture);
        std::string elements;
        const auto add = [&](int pixels) {
            const double modules = static_cast<double>(pixels) / kPixels;
            ASSERT_TRUE(modules == 1 || modules == ratio) << modules;
            elements += modules == 1 ? 'n' : 'w';
        };
        for (std::size_t i = 0; i < bars.size(); ++i) {
            if (i > 0) add(bars[i].left - bars[i - 1].right);
            add(bars[i].right - bars[i].left);
            ASSERT_EQ(bars[i].bottom - bars[i].top, 32 * kPixels);
        }
        EXPECT_GE(bars.front().left, 12 * kPixels);
        EXPECT_GE(picture.width - bars.back().right, 12 * kPixels);
        ASSERT_EQ(elements, ElementsOf(ZintModules(BARCODE_MSI_PLESSEY, data, isCheckWanted)))
            << data;
    }
}

}  // namespace

}  // namespace linewright
