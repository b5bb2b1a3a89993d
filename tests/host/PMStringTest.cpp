#include "PMString.h"

#include <array>
#include <climits>

#include "tests/host/HostTest.h"

namespace {

PMString Plain(const char* text) {
    PMString result;
    result.SetCString(text);
    return result;
}

}  // namespace

TEST(PMStringTest, BeginsEmptyAndPlain) {
    const PMString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.CharCount(), 0);
    EXPECT_FALSE(text.IsTranslatable());
}

TEST(PMStringTest, CarriesAllByteValuesBothWays) {
    std::array<char, 256> bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i);
    PMString text;
    text.SetString(bytes.data(), 256);
    ASSERT_EQ(text.CharCount(), 256);
    for (int32 i = 0; i < 256; ++i) EXPECT_EQ(text.GetWChar(i), static_cast<uint32>(i));
    std::array<char, 256> back{};
    EXPECT_EQ(text.GetString(back.data(), 256), 256);
    EXPECT_EQ(back, bytes);
}

TEST(PMStringTest, ExportsNoMoreThanFitsAndQuestionMarksAboveLatin1) {
    PMString text = Plain("ab");
    text.AppendW(0x20AC);
    text.AppendW(0x1F600);
    text.AppendW(0xFF);
    std::array<char, 6> buffer;
    buffer.fill('#');
    EXPECT_EQ(text.GetString(buffer.data(), 6), 5);
    EXPECT_EQ(std::string_view(buffer.data(), 6), "ab??\xFF#");
    buffer.fill('#');
    EXPECT_EQ(text.GetString(buffer.data(), 3), 3);
    EXPECT_EQ(std::string_view(buffer.data(), 6), "ab?###");
    EXPECT_EQ(text.GetString(buffer.data(), 0), 0);
    EXPECT_EQ(text.GetString(buffer.data(), -1), 0);
}

TEST(PMStringTest, TakesNothingFromNothing) {
    PMString text = Plain("x");
    text.SetString(nullptr, 5);
    EXPECT_TRUE(text.IsEmpty());
    text.SetString("abc", -1);
    EXPECT_TRUE(text.IsEmpty());
    text.SetCString(nullptr);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(PMString(nullptr).IsEmpty());
}

TEST(PMStringTest, CopiesAreTheirOwn) {
    PMString first("kKey", PMString::kDontTranslateDuringCall);
    PMString second = first;
    second.Append("More");
    EXPECT_EQ(first, Plain("kKey"));
    EXPECT_EQ(second, Plain("kKeyMore"));
    EXPECT_TRUE(second.IsTranslatable());
    PMString& same = first;
    first = same;
    EXPECT_EQ(first, Plain("kKey"));
    first = Plain("other");
    EXPECT_EQ(first, Plain("other"));
    EXPECT_FALSE(first.IsTranslatable());
    first.SetTranslatable(kTrue);
    first.Clear();
    EXPECT_TRUE(first.IsEmpty());
    EXPECT_FALSE(first.IsTranslatable());
}

TEST(PMStringTest, AppendsInsertsAndRemoves) {
    PMString text = Plain("bc");
    text.Append(Plain("d"));
    text.AppendW('e');
    text.AppendNumber(-12);
    text.Insert(Plain("a"), 0);
    EXPECT_EQ(text, Plain("abcde-12"));
    text.Insert(Plain("<>"), 3);
    EXPECT_EQ(text, Plain("abc<>de-12"));
    text.Insert(Plain("!"), 100);
    text.Insert(Plain("?"), -1);
    EXPECT_EQ(text, Plain("?abc<>de-12!"));
    text.Remove(4, 2);
    EXPECT_EQ(text, Plain("?abcde-12!"));
    text.Remove(6, 100);
    EXPECT_EQ(text, Plain("?abcde"));
    text.Remove(100, 1);
    text.Remove(0, 0);
    text.Remove(0, -1);
    EXPECT_EQ(text, Plain("?abcde"));
    text.Remove(0, 1);
    text.Append(text);
    text.Insert(text, 1);
    EXPECT_EQ(text, Plain("aabcdeabcdebcdeabcde"));
}

TEST(PMStringTest, FindsByCodePoint) {
    PMString text = FromUtf8("é^0€^1^0");
    EXPECT_EQ(text.IndexOfString(Plain("^0")), 1);
    EXPECT_EQ(text.IndexOfString(Plain("^0"), 2), 6);
    EXPECT_EQ(text.IndexOfString(Plain("^1"), -5), 4);
    EXPECT_EQ(text.IndexOfString(Plain("^2")), -1);
    EXPECT_EQ(text.IndexOfString(Plain("^0"), 100), -1);
}

TEST(PMStringTest, WritesNumbersInDecimal) {
    PMString text("kKey", PMString::kDontTranslateDuringCall);
    text.AsNumber(INT_MIN);
    EXPECT_EQ(text, Plain("-2147483648"));
    EXPECT_FALSE(text.IsTranslatable());
    text.AsNumber(0);
    EXPECT_EQ(text, Plain("0"));
}

TEST(PMStringTest, ComparesTextsOnly) {
    PMString key("kA", PMString::kDontTranslateDuringCall);
    EXPECT_TRUE(key == Plain("kA"));
    EXPECT_FALSE(key == Plain("kB"));
    EXPECT_FALSE(key == Plain("kAA"));
}

class TranslationTest : public HostTest {
  protected:
    void StartIn(const char* locale) {
        settings.locale = locale;
        ASSERT_TRUE(Start()) << Error();
    }
};

TEST_F(TranslationTest, KeepsKeysWhileNoHostRuns) {
    PMString text("kGreeting");
    EXPECT_EQ(text, Plain("kGreeting"));
    EXPECT_TRUE(text.IsTranslatable());
}

TEST_F(TranslationTest, TranslatesKeysWhenAsked) {
    StartIn("enUS");
    PMString text("kGreeting");
    EXPECT_EQ(ToUtf8(text), "Grüße, €, 😀");
    EXPECT_EQ(text.CharCount(), 11);
    EXPECT_FALSE(text.IsTranslatable());
    text.SetKey("kGreeting", PMString::kDontTranslateDuringCall);
    EXPECT_EQ(text, Plain("kGreeting"));
    EXPECT_TRUE(text.IsTranslatable());
    text.Translate();
    EXPECT_EQ(ToUtf8(text), "Grüße, €, 😀");
}

TEST_F(TranslationTest, LeavesPlainTextAndKeysWithoutText) {
    StartIn("enUS");
    PMString plain = Plain("kGreeting");
    plain.Translate();
    EXPECT_EQ(plain, Plain("kGreeting"));
    plain.SetTranslatable(kTrue);
    plain.Translate();
    EXPECT_EQ(ToUtf8(plain), "Grüße, €, 😀");
    PMString unknown("kUnknown");
    EXPECT_EQ(unknown, Plain("kUnknown"));
    EXPECT_TRUE(unknown.IsTranslatable());
}

TEST_F(TranslationTest, TakesTheTextsOfItsLocaleOnly) {
    WriteResource("strings/deDE.toml", "\"kRange\" = \"von ^0 bis ^1\"\n");
    StartIn("deDE");
    EXPECT_EQ(ToUtf8(PMString("kRange")), "von ^0 bis ^1");
    EXPECT_EQ(ToUtf8(PMString("kGreeting")), "kGreeting");
}

TEST_F(TranslationTest, ShowsKeysAndMarkersInThePseudoLocale) {
    StartIn("qps");
    EXPECT_EQ(ToUtf8(PMString("kGreeting")), "kGreeting");
    EXPECT_EQ(ToUtf8(PMString("kRange")), "kRange|^0|^1");
    EXPECT_EQ(ToUtf8(PMString("kTurned")), "kTurned|^2|^0");
    EXPECT_EQ(ToUtf8(PMString("kUnknown")), "kUnknown");
}
