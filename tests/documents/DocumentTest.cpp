#include "documents/Document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zip.h>

#include <filesystem>
#include <pugixml.hpp>
#include <random>

#include "host/runtime/Paths.h"
#include "render/FreeType.h"
#include "text/FontText.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

const std::string kPen = "4006381333931";

/** The content of a part of a package; fails the test where there is none. */
std::string PartOf(const std::string& package, const char* name) {
    zip_source_t* const source =
        zip_source_buffer_create(package.data(), package.size(), 0, nullptr);
    zip_t* const archive = zip_open_from_source(source, ZIP_RDONLY, nullptr);
    zip_stat_t stat{};
    EXPECT_EQ(zip_stat(archive, name, 0, &stat), 0) << name;
    std::string content(stat.size, '\0');
    zip_file_t* const file = zip_fopen(archive, name, 0);
    EXPECT_EQ(zip_fread(file, content.data(), content.size()),
              static_cast<zip_int64_t>(content.size()));
    zip_fclose(file);
    zip_discard(archive);
    return content;
}

/** The plug-in in a host with folders of its own. */
class DocumentTest : public testing::Test {
  protected:
    DocumentTest() {
        fs::create_directories(folder / "app");
        service.emplace(HostOptions{.plugin = LINEWRIGHT_PLUGIN,
                                    .roamingFolder = host::Utf8FromPath(folder),
                                    .appFolder = host::Utf8FromPath(folder / "app"),
                                    .locale = "enUS"});
    }
    ~DocumentTest() override {
        service->Stop();
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    static DocumentWish Wish(DocumentFormat format, std::string_view sheet = "a4-3x8") {
        DocumentWish wish{.format = format, .columns = {"name"}};
        wish.layout = LayoutOn(*FindLabelSheet(sheet));
        wish.layout.lines = UsualLines("name", {});
        return wish;
    }

    /** Why a record has no label. */
    DrawingProblem ProblemOf(Document& document, const BarcodeWish& wish) {
        try {
            document.Add(wish, {"a"});
        } catch (const DrawingFailure& failure) {
            return failure.problem;
        }
        ADD_FAILURE() << wish.data << " is set";
        return {};
    }

    fs::path folder = fs::temp_directory_path() /
                      ("linewright-documents-" + std::to_string(std::random_device()()));
    std::optional<Service> service;
    Fonts fonts{LINEWRIGHT_FONTS};
};

TEST_F(DocumentTest, SetsARecordOnALabel) {
    Document document(*service, fonts, Wish(DocumentFormat::kPdf));
    const DrawnBarcode drawn = document.Add({.type = "ean13", .data = kPen}, {"Pen"});
    EXPECT_TRUE(drawn.drawing);
    EXPECT_TRUE(drawn.drawing->IsFontText());
    EXPECT_THAT(drawn.warnings, IsEmpty());
    EXPECT_EQ(document.Labels(), 1U);
    EXPECT_TRUE(document.Finish().starts_with("%PDF-"));
}

TEST_F(DocumentTest, GivesARefusedRecordNoPlace) {
    Document document(*service, fonts, Wish(DocumentFormat::kFodt));
    EXPECT_FALSE(document.Add({.type = "ean13", .data = "40O6"}, {"a"}).drawing);
    EXPECT_FALSE(document.Add({.type = "no such", .data = "1"}, {"a"}).drawing);
    EXPECT_EQ(document.Labels(), 0U);
    EXPECT_EQ(document.Pages(), 0U);
}

TEST_F(DocumentTest, RefusesASymbolThatIsLargerThanItsLabel) {
    Document document(*service, fonts, Wish(DocumentFormat::kPdf, "a4-4x10"));
    const DrawingProblem high = ProblemOf(document, {.type = "ean13", .data = kPen});
    EXPECT_EQ(high.reason, DrawingProblem::Reason::kLabel);
    EXPECT_THAT(high.parameters, ElementsAre("37.29", "30.3", "49.5", "26.7"));
    const DrawingProblem wide = ProblemOf(document, {.type = "code128", .data = "ABCDEFGHIJKLMN"});
    EXPECT_EQ(wide.parameters.at(2), "49.5");
    EXPECT_EQ(document.Labels(), 0U);
}

TEST_F(DocumentTest, KeepsQuietZonesInSymbolsThatJustFit) {
    for (const double excess : {0.0, 0.02}) {
        DocumentWish wish = Wish(DocumentFormat::kPdf);
        wish.layout.padding = 0;
        // 11 + 95 + 7 modules, of which white is 18.
        wish.layout.sheet.labelWidth = 113 * 0.33 * kMillimetre - excess;
        Document document(*service, fonts, wish);
        if (excess == 0) {
            EXPECT_TRUE(document.Add({.type = "ean13", .data = kPen}, {""}).drawing);
        } else {
            EXPECT_EQ(ProblemOf(document, {.type = "ean13", .data = kPen}).reason,
                      DrawingProblem::Reason::kLabel);
        }
    }
}

TEST_F(DocumentTest, SaysWhichTextWasCut) {
    Document document(*service, fonts, Wish(DocumentFormat::kFodt));
    const std::string name(100, 'm');
    const DrawnBarcode drawn = document.Add({.type = "ean13", .data = kPen}, {name});
    ASSERT_EQ(drawn.warnings.size(), 1U);
    EXPECT_EQ(drawn.warnings.front().kind, DrawingWarning::Kind::kTextCut);
    EXPECT_THAT(drawn.warnings.front().parameters.at(0), testing::EndsWith("mmm…"));
    EXPECT_THAT(document.Finish(), testing::HasSubstr("mmm…<"));
}

TEST_F(DocumentTest, RefusesCutTextWhereItIsStrict) {
    Document document(*service, fonts, Wish(DocumentFormat::kFodt));
    const DrawnBarcode drawn =
        document.Add({.type = "ean13", .data = kPen, .isStrict = true}, {std::string(100, 'm')});
    EXPECT_FALSE(drawn.drawing);
    ASSERT_TRUE(drawn.outcome.refusal);
    EXPECT_EQ(drawn.outcome.refusal->reason, RefusalReason::kStrict);
    EXPECT_EQ(document.Labels(), 0U);
}

TEST_F(DocumentTest, FillsPageAfterPage) {
    Document document(*service, fonts, Wish(DocumentFormat::kFodt));
    for (int label = 0; label < 25; ++label)
        document.Add({.type = "ean8", .data = "96385074"}, {""});
    EXPECT_EQ(document.Pages(), 2U);
    pugi::xml_document file;
    const std::string content = document.Finish();
    ASSERT_TRUE(file.load_string(content.c_str()));
    const auto tables = file.select_nodes("//table:table");
    ASSERT_EQ(tables.size(), 2U);
    EXPECT_EQ(tables[0].node().select_nodes(".//text:p").size(), 24U);
    EXPECT_EQ(tables[1].node().select_nodes(".//text:p").size(), 1U);
    EXPECT_EQ(tables[1].node().select_nodes(".//table:table-cell").size(), 3U);
}

TEST_F(DocumentTest, KeepsEveryByteOfAFontStringInAPackage) {
    // Classic Code 128 draws control characters, and its strings hold quotes and spaces.
    const std::string data = "A \x01\x1F\"<&'--  B";
    Document document(*service, fonts, Wish(DocumentFormat::kIdml, "a4-page"));
    const DrawnBarcode drawn = document.Add({.type = "classic-code128a", .data = data}, {""});
    ASSERT_TRUE(drawn.drawing);
    pugi::xml_document story;
    const std::string part = PartOf(document.Finish(), "Stories/Story_story1.xml");
    ASSERT_TRUE(story.load_string(part.c_str(), pugi::parse_default | pugi::parse_ws_pcdata));
    const std::string text = story.select_node("//Content").node().text().get();
    EXPECT_EQ(text, FontText(drawn.outcome.bytes));
    EXPECT_EQ(FontStringFromText(text), drawn.outcome.bytes);
    EXPECT_THAT(text, testing::HasSubstr("\xE2\x90"));
}

TEST_F(DocumentTest, NamesTheFaceThatIsMissing) {
    DocumentWish wish = Wish(DocumentFormat::kPdf);
    wish.layout.textFamily = "No Such Face";
    try {
        Document document(*service, fonts, wish);
        ADD_FAILURE() << "another face stands in";
    } catch (const DrawingFailure& failure) {
        EXPECT_EQ(failure.problem.reason, DrawingProblem::Reason::kNoTextFace);
        EXPECT_THAT(failure.problem.parameters, ElementsAre("No Such Face"));
    }
}

TEST(DocumentFormatTest, GoesByTheNamesEnding) {
    EXPECT_EQ(DocumentFormatOf("a.b/LABELS.IDML"), DocumentFormat::kIdml);
    EXPECT_EQ(DocumentFormatOf("a.fodt"), DocumentFormat::kFodt);
    EXPECT_EQ(DocumentFormatOf("odt"), std::nullopt);
    EXPECT_EQ(DocumentFormatOf("a.doc"), std::nullopt);
}

TEST_F(DocumentTest, KnowsHowHighLinesOfTheFontsAre) {
    for (const BarcodeType& type : kBarcodeTypes) {
        if (type.face == nullptr) continue;
        const fs::path file =
            fs::path(LINEWRIGHT_FONTS) / (std::string(type.face->fileStem) + ".ttf");
        FT_Face font = nullptr;
        ASSERT_EQ(FT_New_Face(FreeTypeLibrary(), file.c_str(), 0, &font), 0) << file;
        const auto place = BarcodeDrawing::Make(fonts, type, "A", {}).PlaceOfText();
        EXPECT_NEAR(place.ascent, place.size * font->ascender / font->units_per_EM, 1e-9);
        EXPECT_EQ(font->descender, 0);
        EXPECT_EQ(font->height, font->ascender);
        FT_Done_Face(font);
    }
}

}  // namespace

}  // namespace linewright
