#include "words/Words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace linewright {

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr Language kLanguages[]{Language::kEnglish, Language::kGerman, Language::kFrench,
                                Language::kJapanese};

/** A warning with parameters that every sentence can show. */
Warning Sample(WarningReason reason) {
    return {reason, {"3", "7", "9"}};
}

/** What is said has a sentence of its own in each language, for each number up to the last. */
template <typename Make>
void ExpectOtherOnes(int last, const Make& make) {
    for (int number = 0; number <= last; ++number) {
        std::set<std::string> sentences;
        for (const Language language : kLanguages) {
            const std::string sentence = Sentence(make(number), language);
            EXPECT_NE(sentence, "") << number;
            EXPECT_THAT(sentence, Not(HasSubstr("{"))) << number;
            sentences.insert(sentence);
        }
        EXPECT_EQ(sentences.size(), std::size(kLanguages)) << number;
    }
}

TEST(Words, AreOtherOnesInEachLanguage) {
    ExpectOtherOnes(static_cast<int>(WarningReason::kNoSymbol),
                    [](int number) { return Sample(static_cast<WarningReason>(number)); });
    ExpectOtherOnes(static_cast<int>(NumberReason::kNoArticleType), [](int number) {
        return NumberFinding{static_cast<NumberReason>(number), {"GTIN-8", "1", "2", "3"}};
    });
    ExpectOtherOnes(0, [](int) { return UpcANumbers{2, 3}; });
    ExpectOtherOnes(static_cast<int>(DrawingProblem::Reason::kLibrary), [](int number) {
        return DrawingFailure(static_cast<DrawingProblem::Reason>(number));
    });
    ExpectOtherOnes(static_cast<int>(DrawingWarning::Kind::kReductionLost), [](int number) {
        return DrawingWarning{static_cast<DrawingWarning::Kind>(number), {}};
    });
}

TEST(Words, HaveAllParametersInEachLanguage) {
    const Warning replaced{WarningReason::kCheckDigitReplaced, {"7", "1"}};
    EXPECT_EQ(Sentence(replaced, Language::kEnglish),
              "the check digit 7 was replaced by the computed one, 1");
    for (const Language language : kLanguages) {
        EXPECT_THAT(Sentence(replaced, language), HasSubstr("7"));
        EXPECT_THAT(Sentence(replaced, language), HasSubstr("1"));
    }
}

TEST(Words, CountAndQuoteWhatWasDropped) {
    const auto dropped = [](const char* count, const char* characters, Language language) {
        return Sentence({WarningReason::kDroppedByEncoder, {count, characters}}, language);
    };
    EXPECT_EQ(dropped("1", "-", Language::kEnglish), "1 character dropped by the encoder: \"-\"");
    EXPECT_EQ(dropped("2", "--", Language::kEnglish),
              "2 characters dropped by the encoder: \"--\"");
    EXPECT_EQ(dropped("21", "a", Language::kEnglish),
              "21 characters dropped by the encoder: \"a\" …");
    EXPECT_EQ(dropped("1", "-", Language::kGerman), "1 Zeichen beim Kodieren weggelassen: „-“");
}

TEST(Words, UpsetNoTerminal) {
    const std::string sentence =
        Sentence({WarningReason::kBarsSay, {"a\x1B[31m\x7F"}}, Language::kEnglish);
    EXPECT_EQ(sentence, "the bars say \"a␛[31m␡\"");
}

TEST(Words, SayWhyABarcodeWasRefused) {
    BarcodeOutcome outcome{.typeName = "eann13"};
    EXPECT_EQ(WhyRefused(outcome, Language::kEnglish), "");
    outcome.refusal = Refusal{RefusalReason::kUnknownType, {"ean13", "jan13"}};
    EXPECT_EQ(WhyRefused(outcome, Language::kEnglish),
              "there is no type \"eann13\"; nearest: ean13, jan13");
    outcome.refusal = Refusal{RefusalReason::kPlugIn, {"Nur Ziffern"}};
    EXPECT_EQ(WhyRefused(outcome, Language::kGerman), "Nur Ziffern");
    outcome.refusal = Refusal{RefusalReason::kPlugIn};
    EXPECT_EQ(WhyRefused(outcome, Language::kEnglish), "the encoder failed");
}

TEST(Words, KnowTheLanguageOfALocale) {
    EXPECT_EQ(LanguageOf("deDE"), Language::kGerman);
    EXPECT_EQ(LanguageOf("frFR"), Language::kFrench);
    EXPECT_EQ(LanguageOf("jaJP"), Language::kJapanese);
    EXPECT_EQ(LanguageOf("enUS"), Language::kEnglish);
    EXPECT_EQ(LanguageOf(""), Language::kEnglish);
}

}  // namespace

}  // namespace linewright
