#include <gmock/gmock.h>

#include "tests/library/OpenLibrary.h"

// Drawings, in a build that draws.

namespace linewright {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class DrawnTest : public OpenLibrary {
  protected:
    /** The file's content, or the status in words. */
    std::string Drawn(const std::string& format, const std::string& type = "ean13",
                      const std::string& data = "400638133393") {
        const linewright_barcode* barcode = nullptr;
        const linewright_status status =
            linewright_draw(Text(type), Text(data), Text(format), &options, &barcode);
        if (barcode == nullptr) return std::to_string(status) + ": " + linewright_error();
        std::string file = status == LINEWRIGHT_REFUSED ? "refused: " + Said(barcode->message)
                                                        : Said(barcode->file);
        warnings = barcode->warning_count;
        linewright_free_barcode(barcode);
        return file;
    }

    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    std::size_t warnings = 0;
};

TEST_F(DrawnTest, DrawsIntoMemory) {
    EXPECT_THAT(Drawn("pdf"), StartsWith("%PDF-"));
    EXPECT_THAT(Drawn("eps"), StartsWith("%!PS-Adobe"));
    EXPECT_THAT(Drawn("svg"), HasSubstr("<svg"));
    EXPECT_THAT(Drawn("png"), StartsWith("\x89PNG"));
    EXPECT_THAT(Drawn("tiff"), StartsWith("II*"));
}

TEST_F(DrawnTest, TakesTheCommandsOptions) {
    options.x_dimension = linewright_string("0.5mm");
    options.height = linewright_string("75x");
    options.ink = linewright_string("cmyk:0,0,0,100");
    const std::string other = Drawn("pdf");
    EXPECT_THAT(other, StartsWith("%PDF-"));
    EXPECT_EQ(warnings, 0U);
    options.height = {};
    options.x_dimension = linewright_string("0.7mm");
    EXPECT_NE(Drawn("pdf"), other);
    EXPECT_EQ(warnings, 1U) << "larger than the symbology allows";
}

TEST_F(DrawnTest, RefusesOptionsThatSayNothing) {
    options.height = linewright_string("high");
    EXPECT_EQ(Drawn("pdf"), "4: height is no length: \"high\"");
    options.height = {};
    options.pixels_per_module = 0.5;
    EXPECT_THAT(Drawn("png"), StartsWith("4: pixels_per_module is out of its range"));
    options.pixels_per_module = 1.5;
    EXPECT_EQ(Drawn("png"), "4: pixels_per_module is not a whole number");
    options.pixels_per_module = 0;
    EXPECT_EQ(Drawn("gif"), "4: format is none of pdf, eps, svg, png and tiff: \"gif\"");
    options.ink = linewright_string("cmyk:1,2");
    EXPECT_EQ(Drawn("pdf"), "4: ink is none: \"cmyk:1,2\"");
}

TEST_F(DrawnTest, RefusesDrawingsThatCannotBe) {
    options.height = linewright_string("1000x");
    EXPECT_THAT(Drawn("pdf"), StartsWith("7: the bars can be"));
    options.height = {};
    EXPECT_THAT(Drawn("pdf", "ean13", "x"), StartsWith("refused: Only the digits"));
}

TEST_F(DrawnTest, ReadsBackWhatItDraws) {
    const linewright_barcode* barcode = nullptr;
    ASSERT_EQ(linewright_verify(Text("ean13"), Text("400638133393"), nullptr, &barcode),
              LINEWRIGHT_DONE);
    EXPECT_EQ(barcode->verdict, static_cast<uint32_t>(LINEWRIGHT_SCANS));
    EXPECT_EQ(Said(barcode->read), "4006381333931");
    linewright_free_barcode(barcode);
    ASSERT_EQ(linewright_verify(Text("msi"), Text("1234"), nullptr, &barcode), LINEWRIGHT_DONE);
    EXPECT_EQ(barcode->verdict, static_cast<uint32_t>(LINEWRIGHT_NO_SCANNER));
    linewright_free_barcode(barcode);
}

TEST_F(DrawnTest, NamesAFontThatIsNotThere) {
    ASSERT_EQ(linewright_close(), LINEWRIGHT_DONE);
    linewright_places places = Places();
    places.fonts = Text(folder);
    ASSERT_EQ(linewright_open(&places), LINEWRIGHT_DONE);
    EXPECT_THAT(Drawn("pdf"), testing::AllOf(StartsWith("6: "), HasSubstr("LinewrightEANUPC.ttf")));
}

}  // namespace

}  // namespace linewright
