#include "meaning/Meaning.h"

#include <gtest/gtest.h>

#include "tests/TestHost.h"
#include "tests/VectorCalls.h"
#include "tests/meaning/MadeBarcode.h"
#include "types/WrittenType.h"
#include "words/Words.h"

// The rows of meaning.jsonl and warnings.jsonl: what data means, and what is warned about.

namespace linewright {

namespace {

std::string Repeated(const std::string& text, std::size_t times) {
    std::string repeated;
    for (std::size_t i = 0; i < times; ++i) repeated += text;
    return repeated;
}

std::vector<std::string> Sentences(const Meaning& meaning) {
    std::vector<std::string> sentences;
    for (const Warning& warning : meaning.warnings)
        sentences.push_back(Sentence(warning, Language::kEnglish));
    return sentences;
}

/** "hex" or "data": text, which "utf8" sends as it is, in meaning.jsonl a character a byte. */
MadeBarcode BarcodeOf(const MeaningRow& row) {
    const nlohmann::json& fields = row.fields;
    const WrittenType written = FindWrittenType(fields.at("type").get<std::string>());
    MadeBarcode barcode{.type = written.type, .data = {}, .expectation = written.expectation};
    if (fields.contains("hex")) {
        const std::string hex = fields["hex"];
        for (std::size_t i = 0; i < hex.size(); i += 2) {
            barcode.data += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
        }
        barcode.isUtf8 = fields.value("utf8", false);
    } else if (row.file.ends_with("warnings.jsonl")) {
        barcode.data = fields.at("data");
        barcode.isUtf8 = true;
    } else {
        barcode.data = Repeated(BytesOf(fields.at("data")), fields.value("times", std::size_t{1}));
    }
    barcode.isCheckWanted = fields.value("check", false);
    return barcode;
}

std::string NameOf(const testing::TestParamInfo<MeaningRow>& info) {
    const std::string file = info.param.file;
    return file.substr(8, file.find('.') - 8) + "_Line" + std::to_string(info.param.number);
}

std::vector<MeaningRow> AllRows() {
    std::vector<MeaningRow> rows = MeaningRows("meaning/meaning.jsonl");
    for (MeaningRow& row : MeaningRows("meaning/warnings.jsonl")) rows.push_back(std::move(row));
    return rows;
}

class MeaningTest : public testing::TestWithParam<MeaningRow> {
    TestHost host;
};

TEST_P(MeaningTest, IsAsStated) {
    const nlohmann::json& fields = GetParam().fields;
    MadeBarcode barcode = BarcodeOf(GetParam());
    ASSERT_TRUE(Make(barcode, fields.value("ratio", 2.0)));
    const Meaning meaning = barcode.MeaningOfIt();
    EXPECT_EQ(Sentences(meaning), fields.value("warnings", std::vector<std::string>()));
    if (fields.contains("carried")) {
        EXPECT_EQ(meaning.carried,
                  Repeated(BytesOf(fields["carried"]), fields.value("times", std::size_t{1})));
    }
    if (GetParam().file.ends_with("meaning.jsonl")) {
        EXPECT_EQ(meaning.addOn, fields.value("addOn", ""));
        EXPECT_EQ(meaning.isGs1, fields.value("gs1", false));
    }
    if (fields.contains("says")) {
        EXPECT_EQ(meaning.barsSay, fields["says"]);
    }
    EXPECT_FALSE(fields.at("from").empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, MeaningTest, testing::ValuesIn(AllRows()), NameOf);

TEST(MeaningRows, AreThere) {
    EXPECT_GT(MeaningRows("meaning/meaning.jsonl").size(), 40U);
    EXPECT_GT(MeaningRows("meaning/warnings.jsonl").size(), 50U);
}

}  // namespace

}  // namespace linewright
