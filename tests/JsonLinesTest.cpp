#include "tests/JsonLines.h"

#include <gmock/gmock.h>

#include <fstream>

namespace linewright {

namespace {

namespace fs = std::filesystem;

class JsonLinesTest : public testing::Test {
  protected:
    ~JsonLinesTest() override { fs::remove(file); }

    std::vector<JsonLine> RowsOf(const std::string& content) const {
        std::ofstream(file, std::ios::binary) << content;
        return ReadJsonLines(file);
    }
    std::string WhyRefused(const std::string& content) const {
        try {
            RowsOf(content);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "";
    }

    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    const fs::path file = fs::path(testing::TempDir()) / ("linewright-" + name + ".jsonl");
};

TEST_F(JsonLinesTest, KeepTheirNumbers) {
    const auto rows = RowsOf("# a word in front\n{\"a\":1}\n\n{\"a\":{\"b\":2},\"b\":3}");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(NameOf(rows[0]), "Line2");
    EXPECT_EQ(NameOf(rows[1]), "Line4");
    EXPECT_EQ(rows[1].fields.at("b"), 3);
}

TEST_F(JsonLinesTest, AreRefusedByFileAndLine) {
    const std::string place = file.filename().string() + ", line 2: ";
    EXPECT_EQ(WhyRefused("{}\n[1]"), place + "no object stands here");
    EXPECT_EQ(WhyRefused("{}\n{\"a\":1,\"a\":1}"), place + "the member \"a\" stands twice");
    EXPECT_THAT(WhyRefused("{}\n{\"a\""), testing::StartsWith(place));
    EXPECT_THROW(ReadJsonLines("no/such/file"), std::runtime_error);
}

}  // namespace

}  // namespace linewright
