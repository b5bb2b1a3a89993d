#include <gmock/gmock.h>

#include <cstring>
#include <limits>
#include <vector>

#include "tests/library/OpenLibrary.h"

namespace linewright {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/** A barcode that gives itself back. */
class Made {
  public:
    Made(const std::string& type, const std::string& data,
         const linewright_options* options = nullptr)
        : status(linewright_encode(Text(type), Text(data), options, &barcode)) {}
    Made(const Made&) = delete;
    Made& operator=(const Made&) = delete;
    ~Made() { linewright_free_barcode(barcode); }
    const linewright_barcode* operator->() const { return barcode; }

    const linewright_barcode* barcode = nullptr;
    linewright_status status;
};

linewright_options Options(uint32_t flags) {
    linewright_options options = LINEWRIGHT_OPTIONS_INIT;
    options.flags = flags;
    return options;
}

/** A column of texts as an engine holds it. */
template <class Offset>
struct Columned {
    explicit Columned(const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            bytes += text;
            offsets.push_back(static_cast<Offset>(bytes.size()));
        }
    }
    linewright_column Column() const {
        return {bytes.data(), bytes.size(), offsets.data(), 8 * sizeof(Offset)};
    }
    std::string bytes;
    std::vector<Offset> offsets{0};
};

std::vector<std::string> TextsOf(const linewright_results& results) {
    EXPECT_EQ(results.texts.offset_bits, 32U);
    const auto* const offsets = static_cast<const int32_t*>(results.texts.offsets);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < results.count; ++i) {
        texts.emplace_back(results.texts.bytes + offsets[i], results.texts.bytes + offsets[i + 1]);
    }
    return texts;
}

class LibraryTest : public OpenLibrary {};

TEST_F(LibraryTest, MakesABarcode) {
    const Made made("ean13", "400638133393");
    EXPECT_EQ(made.status, LINEWRIGHT_DONE);
    EXPECT_EQ(made->reason, static_cast<uint32_t>(LINEWRIGHT_MADE));
    EXPECT_EQ(Said(made->text), "Y(0A63IB*NNNTNL(");
    EXPECT_EQ(Said(made->bytes), "Y(0A63IB*NNNTNL(");
    EXPECT_EQ(Said(made->type), "_QVT_BARCODE_EAN13_");
    EXPECT_EQ(Said(made->human_readable), "4006381333931");
    EXPECT_EQ(Said(made->font), "Linewright EAN UPC");
    EXPECT_NEAR(made->font_size, 119.74, 0.01);
    EXPECT_EQ(made->position, -1);
    EXPECT_EQ(Said(made->message), "");
}

TEST_F(LibraryTest, KeepsBytesApartFromTheirText) {
    const Made made("classic-code128b", "AB");
    EXPECT_EQ(Said(made->bytes), "\x88\x41\x42\x86\x8A");
    EXPECT_EQ(Said(made->text), "\u02C6AB\u2020\u0160");
}

TEST_F(LibraryTest, WarnsOfWhatWasMade) {
    const Made made("ean13", "4006381333937");
    EXPECT_EQ(made.status, LINEWRIGHT_DONE);
    EXPECT_EQ(made->reason, static_cast<uint32_t>(LINEWRIGHT_WARNED));
    ASSERT_EQ(made->warning_count, 1U);
    EXPECT_EQ(Said(made->warnings[0]), "the check digit 7 was replaced by the computed one, 1");
    const linewright_options strict = Options(LINEWRIGHT_STRICT);
    const Made refused("ean13", "4006381333937", &strict);
    EXPECT_EQ(refused.status, LINEWRIGHT_REFUSED);
    EXPECT_EQ(refused->reason, static_cast<uint32_t>(LINEWRIGHT_NOT_STRICT));
    EXPECT_EQ(Said(refused->text), "");
}

TEST_F(LibraryTest, SaysWhyDataIsRefused) {
    const Made made("ean13", "40O638133393");
    EXPECT_EQ(made.status, LINEWRIGHT_REFUSED);
    EXPECT_EQ(made->reason, static_cast<uint32_t>(LINEWRIGHT_BAD_DATA));
    EXPECT_EQ(made->status, -6301);
    EXPECT_EQ(Said(made->hint), "Only the digits 0 to 9");
    EXPECT_EQ(made->position, 2);
    EXPECT_EQ(Said(made->text), "");
}

TEST_F(LibraryTest, CountsThePlaceOfACharacterInBytes) {
    EXPECT_EQ(Made("ean8", "1é2")->position, 1);
    EXPECT_EQ(Made("ean8", "123456x")->position, 6);
    EXPECT_EQ(Made("code39", "Aéa")->position, 1);
    EXPECT_EQ(Made("ean8", "123456789")->position, -1) << "its length is to blame";
    EXPECT_EQ(Made("ean8", "")->position, -1);
}

TEST_F(LibraryTest, HandsOutTheMarkerOfClassicTypes) {
    const Made made("classic-ean13", "978030640615752995");
    EXPECT_EQ(made.status, LINEWRIGHT_REFUSED);
    EXPECT_THAT(Said(made->bytes), StartsWith("**"));
    EXPECT_EQ(Said(made->message), "Bad EAN-13");
}

TEST_F(LibraryTest, NamesTheNearestTypes) {
    const Made made("ean31", "1");
    EXPECT_EQ(made.status, LINEWRIGHT_REFUSED);
    EXPECT_EQ(made->reason, static_cast<uint32_t>(LINEWRIGHT_UNKNOWN_TYPE));
    EXPECT_THAT(Said(made->message), HasSubstr("ean13"));
}

TEST_F(LibraryTest, TakesBytesCheckAndRatio) {
    linewright_options options = Options(LINEWRIGHT_BYTES);
    options.check = 1;
    options.ratio = 3;
    EXPECT_EQ(Said(Made("code39", "A", &options)->bytes), "CAIIAIACAIIACAICAIIA");
    options.check = 256;
    const Made made("code39", "A", &options);
    EXPECT_EQ(made.status, LINEWRIGHT_BAD_ARGUMENT);
    EXPECT_EQ(made.barcode, nullptr);
    EXPECT_STREQ(linewright_error(), "check is not a number from 0 to 255");
}

TEST_F(LibraryTest, ListsTypes) {
    const linewright_type* types = nullptr;
    std::size_t count = 0;
    ASSERT_EQ(linewright_types(&types, &count), LINEWRIGHT_DONE);
    ASSERT_EQ(count, 27U);
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_NE(Said(types[i].name), "");
        EXPECT_NE(Said(types[i].display_text), "");
        const Made made(Said(types[i].short_name), "12345670");
        EXPECT_EQ(Said(made->type), Said(types[i].name));
    }
}

TEST_F(LibraryTest, CountsItsOpens) {
    EXPECT_EQ(Open(), LINEWRIGHT_DONE);
    EXPECT_EQ(linewright_open(nullptr), LINEWRIGHT_DONE) << "no place is stated";
    EXPECT_EQ(linewright_close(), LINEWRIGHT_DONE);
    EXPECT_EQ(linewright_close(), LINEWRIGHT_DONE);
    EXPECT_EQ(Made("ean8", "1").status, LINEWRIGHT_DONE);
}

TEST_F(LibraryTest, RefusesToOpenOtherPlaces) {
    linewright_places places = Places();
    places.locale = linewright_string("deDE");
    EXPECT_EQ(linewright_open(&places), LINEWRIGHT_OPEN_OTHERWISE);
    places = Places();
    places.config_folder = places.app_folder;
    EXPECT_EQ(linewright_open(&places), LINEWRIGHT_OPEN_OTHERWISE);
    EXPECT_STREQ(linewright_error(), "it is open already, with another plug-in, folder or locale");
}

TEST_F(LibraryTest, SpeaksTheLocaleThatItIsOpenedWith) {
    ASSERT_EQ(linewright_close(), LINEWRIGHT_DONE);
    linewright_places places = Places();
    places.locale = linewright_string("deDE");
    ASSERT_EQ(linewright_open(&places), LINEWRIGHT_DONE);
    EXPECT_EQ(Said(Made("ean13", "x")->hint), "Nur die Ziffern 0 bis 9");
    ASSERT_EQ(linewright_close(), LINEWRIGHT_DONE);
    ASSERT_EQ(Open(), LINEWRIGHT_DONE);
    EXPECT_EQ(Said(Made("ean13", "x")->hint), "Only the digits 0 to 9");
}

TEST_F(LibraryTest, SaysThatItIsClosed) {
    ASSERT_EQ(linewright_close(), LINEWRIGHT_DONE);
    EXPECT_EQ(Made("ean13", "1").status, LINEWRIGHT_NOT_OPEN);
    linewright_places places = Places();
    places.plugin = linewright_string("/nowhere/Linewright.so");
    EXPECT_EQ(linewright_open(&places), LINEWRIGHT_FAILED);
    EXPECT_THAT(linewright_error(), HasSubstr("/nowhere/Linewright.so"));
    places = Places();
    places.locale = linewright_string("xxYY");
    EXPECT_EQ(linewright_open(&places), LINEWRIGHT_FAILED);
    EXPECT_THAT(linewright_error(), HasSubstr("xxYY"));
    ASSERT_EQ(Open(), LINEWRIGHT_DONE);
}

TEST_F(LibraryTest, ResultsOutliveTheHost) {
    const Made made("ean13", "400638133393");
    ASSERT_EQ(linewright_close(), LINEWRIGHT_DONE);
    EXPECT_EQ(Said(made->text), "Y(0A63IB*NNNTNL(");
    EXPECT_EQ(Said(made->font), "Linewright EAN UPC");
    ASSERT_EQ(Open(), LINEWRIGHT_DONE);
}

TEST_F(LibraryTest, KnowsProgramsOfOtherReleases) {
    struct Longer {
        linewright_options options;
        uint64_t more;
    } longer{LINEWRIGHT_OPTIONS_INIT, 0};
    longer.options.size = sizeof longer;
    longer.options.ratio = 3;
    EXPECT_EQ(Said(Made("code39", "A", &longer.options)->bytes), "CAIIAIACAICAIIA");
    longer.more = 1;
    EXPECT_EQ(Made("code39", "A", &longer.options).status, LINEWRIGHT_BAD_ARGUMENT);
    const linewright_options known = Options(LINEWRIGHT_GREY);
    EXPECT_EQ(Made("code39", "A", &known).status, LINEWRIGHT_DONE);
    const linewright_options newer = Options(2 * LINEWRIGHT_GREY);
    EXPECT_EQ(Made("code39", "A", &newer).status, LINEWRIGHT_BAD_ARGUMENT);
    linewright_options shorter = LINEWRIGHT_OPTIONS_INIT;
    shorter.size = offsetof(linewright_options, ratio);
    shorter.ratio = 3;
    EXPECT_NE(Said(Made("code39", "A", &shorter)->bytes), "CAIIAIACAICAIIA") << "not read";
}

TEST_F(LibraryTest, SaysThatMemoryHasEnded) {
    const linewright_text endless{"x", std::numeric_limits<std::size_t>::max()};
    const linewright_barcode* barcode = nullptr;
    EXPECT_EQ(linewright_encode(Text("ean13"), endless, nullptr, &barcode), LINEWRIGHT_NO_MEMORY);
    EXPECT_EQ(barcode, nullptr);
    EXPECT_STREQ(linewright_error(), "there is not enough memory");
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = std::numeric_limits<std::size_t>::max() / 2;
    const linewright_results* results = nullptr;
    EXPECT_EQ(linewright_encode_many(&rows, nullptr, &results), LINEWRIGHT_NO_MEMORY);
    EXPECT_EQ(results, nullptr);
}

template <class Offset>
class ColumnTest : public OpenLibrary {};
using OffsetTypes = testing::Types<int32_t, int64_t>;
TYPED_TEST_SUITE(ColumnTest, OffsetTypes);

TYPED_TEST(ColumnTest, EncodesMany) {
    const Columned<TypeParam> data({"400638133393", "40O638133393", "", "4006381333937"});
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = 4;
    rows.data = data.Column();
    rows.type = linewright_string("EAN-13");
    const linewright_results* results = nullptr;
    ASSERT_EQ(linewright_encode_many(&rows, nullptr, &results), LINEWRIGHT_DONE)
        << linewright_error();
    EXPECT_THAT(TextsOf(*results),
                ElementsAre("Y(0A63IB*NNNTNL(", "", "U(000000*KKKKKK(", "Y(0A63IB*NNNTNL("));
    EXPECT_THAT(std::vector(results->statuses, results->statuses + 4), ElementsAre(0, -6301, 0, 0));
    EXPECT_THAT(
        std::vector(results->reasons, results->reasons + 4),
        ElementsAre(LINEWRIGHT_MADE, LINEWRIGHT_BAD_DATA, LINEWRIGHT_MADE, LINEWRIGHT_MADE));
    linewright_free_results(results);
    const linewright_options warned = Options(LINEWRIGHT_WARN);
    ASSERT_EQ(linewright_encode_many(&rows, &warned, &results), LINEWRIGHT_DONE);
    EXPECT_THAT(
        std::vector(results->reasons, results->reasons + 4),
        ElementsAre(LINEWRIGHT_MADE, LINEWRIGHT_BAD_DATA, LINEWRIGHT_WARNED, LINEWRIGHT_WARNED));
    linewright_free_results(results);
}

TYPED_TEST(ColumnTest, TakesTypesChecksAndRatiosAsColumns) {
    const Columned<TypeParam> data({"A", "A", "AB", "1"});
    const Columned<TypeParam> types({"code39", "code39", "classic-code128b", "nothing"});
    const std::vector<uint8_t> checks{1, 0, 0, 0};
    const std::vector<double> ratios{3, 3, 2, 2};
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = 4;
    rows.data = data.Column();
    rows.types = types.Column();
    rows.checks = checks.data();
    rows.ratios = ratios.data();
    const linewright_options bytes = Options(LINEWRIGHT_FONT_BYTES);
    const linewright_results* results = nullptr;
    ASSERT_EQ(linewright_encode_many(&rows, &bytes, &results), LINEWRIGHT_DONE);
    EXPECT_THAT(TextsOf(*results),
                ElementsAre("CAIIAIACAIIACAICAIIA", "CAIIAIACAICAIIA", "\x88\x41\x42\x86\x8A", ""));
    EXPECT_EQ(results->reasons[3], LINEWRIGHT_UNKNOWN_TYPE);
    linewright_free_results(results);
}

TYPED_TEST(ColumnTest, RefusesOffsetsThatCannotBe) {
    Columned<TypeParam> data({"1", "2", "3"});
    linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    rows.count = 3;
    rows.type = linewright_string("ean8");
    const auto refusal = [&] {
        rows.data = data.Column();
        const linewright_results* results = nullptr;
        EXPECT_EQ(linewright_encode_many(&rows, nullptr, &results), LINEWRIGHT_BAD_ARGUMENT);
        EXPECT_EQ(results, nullptr);
        return std::string(linewright_error());
    };
    data.offsets[3] = 4;
    EXPECT_EQ(refusal(), "data: the offsets of row 2 go back or leave the buffer");
    data.offsets[3] = 1;
    EXPECT_EQ(refusal(), "data: the offsets of row 2 go back or leave the buffer");
    data.offsets[0] = -1;
    EXPECT_EQ(refusal(), "data: the offsets of row 0 go back or leave the buffer");
}

TEST_F(LibraryTest, EncodesNoRows) {
    const linewright_rows rows = LINEWRIGHT_ROWS_INIT;
    const linewright_results* results = nullptr;
    ASSERT_EQ(linewright_encode_many(&rows, nullptr, &results), LINEWRIGHT_DONE);
    EXPECT_EQ(results->count, 0U);
    EXPECT_EQ(TextsOf(*results), std::vector<std::string>());
    linewright_free_results(results);
}

}  // namespace

}  // namespace linewright
