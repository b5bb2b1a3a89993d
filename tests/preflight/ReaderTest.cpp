#include <gtest/gtest.h>

#include <random>

#include "imb/ImbDecode.h"
#include "imb/ImbEncode.h"
#include "preflight/Candidates.h"
#include "preflight/PictureDocument.h"
#include "preflight/PopplerText.h"
#include "preflight/SymbolReader.h"

namespace linewright {
namespace {

std::string Bars(const std::string& tracking, const std::string& routing) {
    std::array<char, kImbBarCount + 1> bars{};
    EXPECT_EQ(ImbEncode(tracking.c_str(), routing.c_str(), bars.data()),
              USPS_FSB_ENCODER_API_SUCCESS);
    return bars.data();
}

std::string Digits(std::mt19937& random, std::size_t count) {
    std::string digits;
    for (std::size_t place = 0; place < count; ++place) {
        digits += static_cast<char>('0' + random() % 10);
    }
    return digits;
}

TEST(ImbDecode, ReadsWhatTheEncoderWrites) {
    std::mt19937 random(1);
    for (int round = 0; round < 20'000; ++round) {
        std::string tracking = Digits(random, 20);
        tracking[1] = static_cast<char>('0' + random() % 5);
        const std::size_t lengths[] = {0, 5, 9, 11};
        const std::string routing = Digits(random, lengths[random() % 4]);
        const auto digits = ImbDecode(Bars(tracking, routing));
        ASSERT_TRUE(digits) << tracking << routing;
        ASSERT_EQ(*digits, (ImbDigits{tracking, routing}));
    }
}

TEST(ImbDecode, TakesNoBarForAnother) {
    std::mt19937 random(2);
    const std::string bars = Bars("01234567094987654321", "01234567891");
    EXPECT_EQ(bars, "AADTFFDFTDADTAADAATFDTDDAAADDTDTTDAFADADDDTFFFDDTTTADFAAADFTDAADA");
    for (std::size_t place = 0; place < bars.size(); ++place) {
        for (const char letter : {'A', 'D', 'F', 'T'}) {
            std::string other = bars;
            other[place] = letter;
            EXPECT_EQ(ImbDecode(other).has_value(), other == bars);
        }
    }
    for (int round = 0; round < 100'000; ++round) {
        std::string noise(kImbBarCount, 'T');
        for (char& letter : noise) letter = "ADFT"[random() % 4];
        EXPECT_FALSE(ImbDecode(noise));
    }
    EXPECT_FALSE(ImbDecode(""));
    EXPECT_FALSE(ImbDecode(bars.substr(1)));
    EXPECT_FALSE(ImbDecode(std::string(kImbBarCount, 'x')));
}

constexpr double kPixels = 12;

/** A white picture with postal bars: 6 pixels wide, 14 from bar to bar. */
GreyRaster PostalPicture(const std::string& letters, bool isUpsideDown) {
    GreyRaster picture{
        .width = 14 * static_cast<int>(letters.size()) + 200, .height = 120, .pixels = {}};
    picture.pixels.assign(static_cast<std::size_t>(picture.width * picture.height), 255);
    for (std::size_t place = 0; place < letters.size(); ++place) {
        const char letter = letters[place];
        const int top = letter == 'A' || letter == 'F' ? 36 : 52;
        const int bottom = letter == 'D' || letter == 'F' ? 84 : 68;
        for (int y = top; y < bottom; ++y) {
            for (int x = 0; x < 6; ++x) {
                const int across = 100 + 14 * static_cast<int>(place) + x;
                if (isUpsideDown) {
                    picture.Row(119 - y)[picture.width - 1 - across] = 0;
                } else {
                    picture.Row(y)[across] = 0;
                }
            }
        }
    }
    return picture;
}

TEST(PostalReader, ReadsIntelligentMailEitherWayUpAndTurned) {
    const std::string bars = Bars("01234567094987654321", "01234");
    for (const bool isUpsideDown : {false, true}) {
        GreyRaster picture = PostalPicture(bars, isUpsideDown);
        const auto symbols = ReadSymbols(picture, kPixels, false);
        ASSERT_EQ(symbols.size(), 1);
        EXPECT_EQ(symbols[0].reading.said, "0123456709498765432101234");
        EXPECT_EQ(symbols[0].isReversed, isUpsideDown);
        // As a page's column it is a mirror image, which says nothing.
        GreyRaster mirrored = PostalPicture(bars, isUpsideDown);
        EXPECT_TRUE(ReadSymbols(mirrored, kPixels, true).empty());
    }
}

TEST(PostalReader, ReadsPostnetByItsEvenSide) {
    // 1 2 3 4 5: two tall bars of five, between frame bars.
    std::string letters = "A";
    for (const char* const digit : {"TTTAA", "TTATA", "TTAAT", "TATTA", "TATAT"}) letters += digit;
    letters += 'A';
    for (const bool isUpsideDown : {false, true}) {
        GreyRaster picture = PostalPicture(letters, isUpsideDown);
        const auto symbols = ReadSymbols(picture, kPixels, false);
        ASSERT_EQ(symbols.size(), 1);
        EXPECT_EQ(symbols[0].reading.data, "12345");
        EXPECT_EQ(symbols[0].isReversed, isUpsideDown);
    }
}

TEST(Candidates, SmallAndEvenPicturesHaveNone) {
    EXPECT_TRUE(FindCandidates({}, kPixels).empty());
    GreyRaster one{.width = 1, .height = 1, .pixels = {0}};
    EXPECT_TRUE(FindCandidates(one, kPixels).empty());
    GreyRaster grey{.width = 400, .height = 300, .pixels = std::vector<std::uint8_t>(120'000, 90)};
    EXPECT_TRUE(FindCandidates(grey, kPixels).empty());
    EXPECT_TRUE(ReadSymbols(grey, kPixels, false).empty());
}

TEST(Candidates, TurningTwiceIsNothing) {
    GreyRaster picture{.width = 70, .height = 41, .pixels = {}};
    std::mt19937 random(3);
    for (int pixel = 0; pixel < 70 * 41; ++pixel) {
        picture.pixels.push_back(static_cast<std::uint8_t>(random()));
    }
    EXPECT_EQ(Turned(picture).At(3, 5), picture.At(5, 3));
    EXPECT_EQ(Turned(Turned(picture)).pixels, picture.pixels);
}

TEST(PopplerText, PagesHaveTheirSizes) {
    const auto facts = ReadPdfInfo(
        "Title: Pages: 9\nPages:          2\nPage    1 size:  595.276 x 841.89 pts (A4)\n"
        "Page    1 rot:   90\nPage    2 size:  100 x 200 pts\nPage    2 rot:   0\n");
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->pages, 2);
    ASSERT_EQ(facts->sizes.size(), 2);
    EXPECT_EQ(facts->sizes[0].width, 841.89);
    EXPECT_EQ(facts->sizes[1].height, 200);
    EXPECT_TRUE(ReadPdfInfo("Page 1 size: nan x inf pts\nPage 1 rot: 90")->sizes.empty());
}

TEST(PopplerText, APictureIsWholeOrNone) {
    GreyRaster grey;
    GreyRaster red;
    EXPECT_TRUE(ReadPpm(std::string_view("P6\n2 1\n255\n\xFF\0\0\0\0\xFF", 17), grey, red));
    EXPECT_EQ(red.pixels, (std::vector<std::uint8_t>{255, 0}));
    for (const std::string_view bad :
         {"", "P6", "P6\n2 1\n255\n", "P6\n-2 1\n255\nabc", "P6\n99999 99999\n255\nabc",
          "P5\n1 1\n255\na", "P6\n1 1\n65535\nabc"}) {
        EXPECT_FALSE(ReadPpm(bad, grey, red)) << bad;
    }
}

TEST(PopplerText, FontsStandWithoutTheMarkOfAPart) {
    const auto texts = ReadPlacedTexts(
        "<pdf2xml><page width=\"200\"><fontspec id=\"0\" family=\"ABCDEF+Bars\"/>"
        "<text top=\"10\" left=\"20\" width=\"30\" height=\"5\" font=\"0\">x</text>"
        "<text top=\"nan\" left=\"20\" width=\"30\" height=\"5\" font=\"0\">x</text>"
        "</page></pdf2xml>",
        100);
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts[0].font, "Bars");
    EXPECT_EQ(texts[0].area.left, 10);
    EXPECT_TRUE(ReadPlacedTexts("<pdf2xml", 100).empty());
}

TEST(PngResolution, IsInMetres) {
    std::string png = "\x89PNG\r\n\x1A\n";
    png += std::string("\0\0\0\x09pHYs\0\0\x2E\x23\0\0\x2E\x23\x01", 17) + "crc!";
    EXPECT_EQ(PngResolution(png), 11.811);
    png[24] = '\0';
    EXPECT_FALSE(PngResolution(png));
    EXPECT_FALSE(PngResolution(png.substr(0, 20)));
    EXPECT_FALSE(PngResolution("\x89PNG\r\n\x1A\n\xFF\xFF\xFF\xFFpHYs"));
}

}  // namespace
}  // namespace linewright
