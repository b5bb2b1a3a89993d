#include "presets/Preset.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "presets/PresetFolder.h"
#include "tests/files/TestFolder.h"
#include "types/Dimensions.h"
#include "words/Words.h"

namespace linewright {

namespace {

using testing::HasSubstr;

/** What is said about a preset that is refused; "" for one that is not. */
std::string Objection(const std::string& content, Language language = Language::kEnglish) {
    try {
        PresetOf(content, "shelf.toml");
        return "";
    } catch (const PresetFailure& failure) {
        return Sentence(failure, language);
    }
}

class PresetFolderTest : public TestFolder {};

TEST(Preset, SaysHowBarcodesAreDrawn) {
    const DrawingWish wish = PresetOf(
        "# Regal, für Etiketten\n"
        "x-dimension = \"0.5mm\"\nheight = \"20x\"\nquiet-zone = \"0mm\"\n"
        "bar-width-reduction = \"10%\"\ndpi = 600\nfit = true\ntext = false\n"
        "bearer = true\nmargin-marks = true\n",
        "a");
    EXPECT_DOUBLE_EQ(wish.xDimension.value(), 0.5 * kMillimetre);
    EXPECT_FALSE(wish.magnification);
    EXPECT_EQ(wish.height.value().number, 20);
    EXPECT_TRUE(wish.height.value().isInX);
    EXPECT_EQ(wish.quietZone.value().number, 0);
    EXPECT_DOUBLE_EQ(wish.barWidthReduction.value().number, 0.1);
    EXPECT_EQ(wish.dotsPerInch.value(), 600);
    EXPECT_TRUE(wish.isFitted);
    EXPECT_EQ(wish.isTextWanted, false);
    EXPECT_TRUE(wish.hasBearerBars);
    EXPECT_TRUE(wish.hasMarginMarks);
}

TEST(Preset, OfNothingLeavesEverythingToTheType) {
    EXPECT_EQ(PresetText(PresetOf("", "a")), "");
    EXPECT_EQ(PresetText(PresetOf("# nothing\n", "a")), "");
}

TEST(Preset, IsReadBackAsItWasWritten) {
    const std::vector<std::string> presets{
        "x-dimension = \"0.33mm\"\n",
        "magnification = 80\n",
        "magnification = 112.5\nheight = \"15mm\"\n",
        "quiet-zone = \"10x\"\nbar-width-reduction = \"12.5%\"\n",
        "bar-width-reduction = \"0.03mm\"\n",
        "dpi = 203.2\nfit = true\ntext = true\nbearer = true\nmargin-marks = true\n",
    };
    for (const std::string& preset : presets) EXPECT_EQ(PresetText(PresetOf(preset, "a")), preset);
}

TEST(Preset, NamesFileLineAndKeyOfWhatIsWrong) {
    const std::pair<const char*, const char*> rows[]{
        {"height = \"1mm\"\nhieght = \"1mm\"",
         "shelf.toml: line 2: a preset has no key \"hieght\"; nearest: height"},
        {"x-dimension = \"10x\"", "shelf.toml: line 1: x-dimension = "},
        {"x-dimension = 0.33", "no length such as \"0.33mm\""},
        {"\n\nheight = \"tall\"", "shelf.toml: line 3: height = "},
        {"height = \"0mm\"", "is no length"},
        {"quiet-zone = true", "quiet-zone = true is no length"},
        {"bar-width-reduction = \"10 percent\"", "share of the narrowest bar"},
        {"magnification = 0", "magnification = 0 is no number of per cent from 1 to 1000"},
        {"magnification = \"80%\"", "is no number of per cent"},
        {"magnification = nan", "is no number of per cent"},
        {"dpi = 100001", "dpi = 100001 is no number of dots per inch"},
        {"dpi = \"600\"", "is no number of dots per inch"},
        {"text = 1", "text = 1 is neither true nor false"},
        {"fit = \"yes\"", "is neither true nor false"},
        {"dpi = 600\ndpi = 300", "shelf.toml: line 2: this is no TOML"},
        {"dpi = ", "this is no TOML"},
        {"\xFF", "this is no TOML"},
        {"[height]\nmm = 3", "shelf.toml: line 1: height = "},
        {"x-dimension = \"1mm\"\nmagnification = 80", "shelf.toml: x-dimension and magnification"},
    };
    for (const auto& [content, sentence] : rows) {
        EXPECT_THAT(Objection(content), HasSubstr(sentence)) << content;
    }
    EXPECT_THAT(Objection(std::string(kLongestPreset + 1, '#')), HasSubstr("too long"));
    EXPECT_EQ(Objection(std::string(kLongestPreset, '#')), "");
    EXPECT_THAT(Objection("hoehe = 1", Language::kGerman), HasSubstr("shelf.toml: Zeile 1: "));
}

TEST(Preset, WhatIsWishedForBesidesGoesBefore) {
    const DrawingWish preset = PresetOf("magnification = 80\nheight = \"9mm\"\ntext = true\n", "a");
    EXPECT_EQ(PresetText(Combined(preset, {})), PresetText(preset));
    EXPECT_EQ(PresetText(Combined(preset, {.xDimension = kMillimetre, .isTextWanted = false})),
              "x-dimension = \"1mm\"\nheight = \"9mm\"\ntext = false\n");
    EXPECT_EQ(PresetText(Combined({.xDimension = kMillimetre}, {.magnification = 90})),
              "magnification = 90\n");
}

TEST_F(PresetFolderTest, KeepsPresetsByTheirNames) {
    const PresetFolder presets(folder / "new" / "presets");
    EXPECT_TRUE(presets.Names().empty());
    presets.Store("Regal groß", {.dotsPerInch = 600});
    presets.Store("A", {.dotsPerInch = 300});
    presets.Store("A", {.dotsPerInch = 203});
    EXPECT_THAT(presets.Names(), testing::ElementsAre("A", "Regal groß"));
    EXPECT_EQ(presets.Read("A").dotsPerInch, 203);
    EXPECT_EQ(ReadPreset(presets.FileOf("Regal groß")).dotsPerInch, 600);
    presets.Remove("A");
    EXPECT_THAT(presets.Names(), testing::ElementsAre("Regal groß"));
}

TEST_F(PresetFolderTest, ListsNothingElse) {
    Put("a.toml", "");
    Put("b.txt", "");
    Put(".hidden.toml", "");
    EXPECT_THAT(PresetFolder(folder).Names(), testing::ElementsAre("a"));
}

TEST_F(PresetFolderTest, RefusesNamesThatNoFileCanHave) {
    const PresetFolder presets(folder);
    for (const char* const name : {"", ".", "..", ".a", "a.", " a", "a ", "a/b", "a\\b", "a:b",
                                   "a*b", "a?b", "a\"b", "a<b", "a|b", "a\nb"}) {
        EXPECT_THROW(presets.Store(name, {}), PresetFailure) << name;
    }
    EXPECT_THROW(presets.Store(std::string(101, 'a'), {}), PresetFailure);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(PresetFolderTest, SaysWhyAPresetCannotBeHad) {
    const PresetFolder presets(folder);
    const auto objection = [](const auto& work) -> std::string {
        try {
            work();
            return "";
        } catch (const PresetFailure& failure) {
            return Sentence(failure, Language::kEnglish);
        }
    };
    EXPECT_THAT(objection([&] { static_cast<void>(presets.Read("no")); }),
                HasSubstr("no.toml: the preset cannot be read: No such file"));
    EXPECT_THAT(objection([&] { ReadPreset(folder.string()); }), HasSubstr("cannot be read"));
    if (std::filesystem::exists("/dev/zero")) {
        EXPECT_THAT(objection([] { ReadPreset("/dev/zero"); }), HasSubstr("too long"));
        EXPECT_THAT(objection([] { WritePreset("/dev/full", {.dotsPerInch = 1}); }),
                    HasSubstr("/dev/full: the preset cannot be stored"));
    }
    EXPECT_THAT(objection([&] { presets.Remove("no/thing"); }), "");
    Put("file", "");
    EXPECT_THAT(objection([&] { PresetFolder(folder / "file").Store("a", {}); }),
                HasSubstr("the preset cannot be stored"));
}

}  // namespace

}  // namespace linewright
