#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/cli/CommandRunner.h"
#include "text/Readable.h"

namespace linewright {

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

const std::vector<std::vector<std::string>> kCommands{
    {},         {"types"}, {"encode"}, {"stream"}, {"batch"}, {"prefs"}, {"prefs", "set"},
    {"dialog"}, {"draw"},  {"verify"}, {"proof"},  {"fonts"}};

TEST(Help, FitsAScreenAndHasAnExample) {
    const CommandRunner command;
    for (std::vector<std::string> words : kCommands) {
        words.emplace_back("--help");
        const auto result = command.Run(words);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        // Only rows of files and what a press wants of a drawing take more.
        const bool isLong = words.front() == "draw" || words.front() == "batch";
        const std::ptrdiff_t screen = isLong ? 40 : words.front() == "proof" ? 28 : 24;
        EXPECT_LE(std::count(result.out.begin(), result.out.end(), '\n'), screen) << result.out;
        EXPECT_THAT(result.out, HasSubstr("Example:  "));
        EXPECT_THAT(result.out, HasSubstr("linewright"));
        std::size_t start = 0;
        for (std::size_t end = 0; (end = result.out.find('\n', start)) != std::string::npos;) {
            EXPECT_LE(end - start, 100U) << result.out.substr(start, end - start);
            start = end + 1;
        }
    }
}

TEST(Help, ListsItselfAndNamesOptionsAsTheyAreTyped) {
    const CommandRunner command;
    for (std::vector<std::string> words : kCommands) {
        words.emplace_back("-h");
        const auto result = command.Run(words);
        EXPECT_THAT(result.out, HasSubstr("\n  -h,--help  ")) << testing::PrintToString(words);
        EXPECT_THAT(result.out, testing::Not(HasSubstr("{false}")))
            << testing::PrintToString(words);
    }
    EXPECT_THAT(command.Run({"draw", "-h"}).out, HasSubstr("\n  --text,--no-text  "));
    EXPECT_THAT(command.Run({"-h"}).out, HasSubstr("--version"));
}

TEST(Help, VersionIsPrinted) {
    const auto result = CommandRunner().Run({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, StartsWith("linewright "));
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '.'), 2) << result.out;
}

TEST(Usage, MistakesEndWithTwo) {
    const CommandRunner command;
    const std::vector<std::vector<std::string>> mistakes{
        {},
        {"encod"},
        {"types", "more"},
        {"types", "--jsn"},
        {"encode"},
        {"encode", "ean13"},
        {"encode", "ean13", "1", "2"},
        {"encode", "code39", "A", "--ratio", "2.75"},
        {"encode", "code39", "A", "--ratio"},
        {"encode", "code39", "A", "--hex", "--json"},
        {"encode", "code39", "A", "--raw", "--json"},
        {"encode", "code39", "A", "--hex", "--raw"},
        {"batch"},
        {"batch", "x.csv", "--delimiter", "ab"},
        {"batch", "x.csv", "--delimiter", "\""},
        {"prefs", "get"},
        {"prefs", "set"},
    };
    for (const auto& words : mistakes) {
        const auto result = command.Run(words);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(words);
        EXPECT_EQ(result.out, "") << testing::PrintToString(words);
        EXPECT_NE(result.err, "") << testing::PrintToString(words);
    }
}

/** A mistake, and what is said of it between "linewright: " and the advice at the end. */
struct Mistake {
    std::vector<std::string> words;
    std::string sentence;
    std::string command;
};

TEST(Usage, MistakesAreNamed) {
    const CommandRunner command;
    const std::vector<Mistake> mistakes{
        {{}, "A subcommand is required", "linewright"},
        {{"encod", "ean13", "1"},
         "there is no \"linewright encod\"; nearest: linewright encode",
         "linewright"},
        {{"fnts"}, "there is no \"linewright fnts\"; nearest: linewright fonts", "linewright"},
        {{"prefs", "get"},
         "there is no \"linewright prefs get\"; nearest: linewright prefs set",
         "linewright prefs"},
        {{"fonts", "instal"},
         "there is no \"linewright fonts instal\"; nearest: linewright fonts install",
         "linewright fonts"},
        {{"--locle", "deDE", "types"}, "\"--locle\" is not expected here", "linewright types"},
        {{"types", "more"}, "\"more\" is not expected here", "linewright types"},
        {{"types", "--jsn"}, "\"--jsn\" is not expected here", "linewright types"},
        {{"encode", "ean13", "--"}, "DATA is required", "linewright encode"},
        {{"draw", "ean13", "1"}, "--output is required", "linewright draw"},
        {{"encode", "code39", "A", "--hex", "--json"},
         "--json excludes --hex",
         "linewright encode"},
        {{"dialog", "25O"}, "ID: 25O not in {250,251}", "linewright dialog"},
    };
    for (const auto& [words, sentence, about] : mistakes) {
        const auto result = command.Run(words);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, fmt::format("linewright: {}; see {} --help\n", sentence, about));
    }
}

TEST(Usage, ControlCharactersStayOffTheTerminal) {
    const CommandRunner command;
    const std::string evil = "\x1B[2Ja\r\n\x7F\u009B\xFF.pdf";
    const std::vector<std::vector<std::string>> mistakes{
        {evil},
        {"types", evil},
        {"types", "--plugin", evil},
        {"types", "--" + evil},
        {"encode", evil, "1"},
        {"encode", "code39", "A", "--ratio", evil},
        {"encode", "ean13", evil},
        {"encode", "ean13", evil, "--strict"},
        {"batch", evil},
        {"batch", "-", "-o", "no/such/" + evil},
        {"batch", "-", "--delimiter", evil},
        {"batch", "-", "--column", evil},
        {"prefs", "set", evil},
        {"prefs", "set", "codabarStart=" + evil},
        {"dialog", evil},
        {"dialog", "250", "--set", evil},
        {"dialog", "250", "--press", evil},
        {"fonts", "install", "--fonts", evil},
        {"draw", "ean13", "1", "-o", evil + "x"},
        {"draw", "ean13", "400638133393", "-o", "no/such/" + evil},
        {"draw", "ean13", "400638133393", "-o", "x.pdf", "--height", evil},
    };
    for (const auto& words : mistakes) {
        std::string err = command.Run(words).err;
        ASSERT_TRUE(err.ends_with('\n')) << testing::PrintToString(words);
        std::erase(err, '\n');
        EXPECT_EQ(Readable(err), err) << testing::PrintToString(words);
    }
}

TEST(Usage, AMissingPlugInIsNamed) {
    const auto result = CommandRunner().Run({"types", "--plugin", "no/such/file"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("no/such/file"));
}

TEST(Usage, HostOptionsStandAnywhere) {
    const CommandRunner command;
    const std::vector<std::vector<std::string>> orders{
        {"--locale", "qps", "encode", "imb", "1"},
        {"encode", "--locale", "qps", "imb", "1"},
        {"encode", "imb", "1", "--locale", "qps"},
        {"encode", "imb", "1", "--locale=qps"},
    };
    for (const auto& words : orders) {
        EXPECT_THAT(command.Run(words).err, HasSubstr("0x122100kLWRBarCodeLengthBetweenHint"));
    }
}

TEST(Types, AreListedInThePlugInsOrder) {
    const CommandRunner command;
    const auto result = command.Run({"types", "--json", "--locale", "qps"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    const json types = json::parse(result.out);
    ASSERT_EQ(types.size(), 27U);
    for (std::size_t i = 0; i < types.size(); ++i) {
        EXPECT_EQ(types[i]["index"], i);
        EXPECT_NE(types[i]["shortName"], "") << types[i];
        EXPECT_EQ(types[i].contains("optionFlag1"), i >= 15);
    }
    EXPECT_EQ(types[0]["type"], "_BARCODE_POSTNET_");
    EXPECT_EQ(types[0]["shortName"], "classic-postnet");
    EXPECT_EQ(types[0]["displayText"], "0x122100kLWRUtilityTypePopupItemPostNetLegacyKey");
    EXPECT_EQ(types[1]["shortName"], "imb");
    EXPECT_EQ(types[14]["type"], "_BARCODE_UPCE_");
    EXPECT_EQ(types[16], (json{{"index", 16},
                               {"type", "_QVT_BARCODE_CODE39_"},
                               {"shortName", "code39"},
                               {"displayText", "0x122100kLWRUtilityTypePopupItem7Key"},
                               {"font", "Linewright Bars"},
                               {"modulesPerEm", 32},
                               {"xDimension", 0.254},
                               {"optionFlag1", 1},
                               {"optionFlag2", 1},
                               {"optionFlag3", 1}}));
    EXPECT_EQ(types[18]["shortName"], "ean8");
    EXPECT_EQ(types[18]["font"], "Linewright EAN UPC");
    EXPECT_EQ(types[18]["xDimension"], 0.33);
    EXPECT_EQ(types[18]["optionFlag2"], 1);
    EXPECT_EQ(types[20]["shortName"], "i2of5-text");
    for (const char* const name : {"font", "modulesPerEm", "xDimension"}) {
        EXPECT_EQ(types[20].at(name), nullptr) << "digits for any face";
    }
    EXPECT_EQ(types[26]["type"], "_QVT_BARCODE_POSTNET_");
}

/** In a real locale every type still finds its way from display text to type name. */
TEST(Types, HaveTextsOfTheirOwn) {
    const json types = json::parse(CommandRunner().Run({"types", "--json"}).out);
    std::vector<std::string> names;
    std::vector<std::string> texts;
    for (const json& type : types) {
        names.push_back(type["type"]);
        texts.push_back(type["displayText"]);
        EXPECT_THAT(texts.back(), testing::Not(HasSubstr("kLWR")));
    }
    for (auto* list : {&names, &texts}) {
        std::sort(list->begin(), list->end());
        EXPECT_EQ(std::adjacent_find(list->begin(), list->end()), list->end());
    }
    EXPECT_EQ(names.size(), 27U);
}

TEST(Fonts, AreListedWithTheSizeOfAnXDimension) {
    const CommandRunner command;
    const auto sizeOf = [&](const std::string& type, std::vector<std::string> more) {
        more.insert(more.begin(), {"fonts", "list", "--json"});
        for (const json& row : json::parse(command.Run(more).out))
            if (row.at("type") == type) return row;
        return json();
    };
    const json usual = sizeOf("ean13", {});
    EXPECT_EQ(usual.at("font"), "Linewright EAN UPC");
    EXPECT_EQ(usual.at("style"), "Regular");
    EXPECT_EQ(usual.at("xDimension"), 0.33);
    // 128 modules of 0.33 mm make an em, 42.24 mm.
    EXPECT_NEAR(usual.at("size").get<double>(), 42.24 * 72 / 25.4, 0.001);
    EXPECT_NEAR(sizeOf("ean13", {"--x-dimension", "0.66mm"}).at("size").get<double>(),
                84.48 * 72 / 25.4, 0.001);
    EXPECT_EQ(sizeOf("i2of5-text", {}), json());
}

TEST(Types, MakeATable) {
    const auto result = CommandRunner().Run({"types"});
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 28);
    EXPECT_THAT(result.out, HasSubstr("code39ascii"));
    EXPECT_THAT(result.out, HasSubstr("_QVT_BARCODE_I2OF5_TEXT_"));
}

// Set B: 104 + 33 + 2·34 = 205, check 102, which the font has at byte 134.
TEST(Encode, PrintsTheFontStringInEachForm) {
    const CommandRunner command;
    const std::vector<std::string> words{"encode", "classic-code128b", "AB"};
    const auto run = [&](const char* form) {
        auto more = words;
        if (*form) more.emplace_back(form);
        const auto result = command.Run(more);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        return result.out;
    };
    EXPECT_EQ(run(""), "ˆAB†Š\n");
    EXPECT_EQ(run("--hex"), "884142868a\n");
    EXPECT_EQ(run("--raw"),
              "\x88"
              "AB\x86\x8A");
    EXPECT_EQ(json::parse(run("--json")), (json{{"type", "_BARCODE_CODE128B_"},
                                                {"shortName", "classic-code128b"},
                                                {"status", 0},
                                                {"hex", "884142868a"},
                                                {"text", "ˆAB†Š"},
                                                {"warnings", json::array()}}));
}

TEST(Encode, TakesTypeNamesToo) {
    EXPECT_EQ(CommandRunner().Run({"encode", "_BARCODE_CODE128B_", "AB"}).out, "ˆAB†Š\n");
}

TEST(Encode, TakesTheNamesThatPeopleWrite) {
    const CommandRunner command;
    const auto encoded = [&](const char* type, const char* data) {
        return command.Run({"encode", type, data}).out;
    };
    EXPECT_EQ(encoded("EAN-13", "4006381333931"), encoded("ean13", "4006381333931"));
    EXPECT_EQ(encoded("ISBN", "9780306406157"), encoded("ean13", "9780306406157"));
    EXPECT_EQ(encoded("ITF-14", "15400141288763"), encoded("i2of5", "15400141288763"));
    EXPECT_EQ(encoded("GS1-128", "(10)AB"), encoded("code128", "(10)AB"));
}

TEST(Encode, WarnsWhereANameMeansMoreThanItsType) {
    const CommandRunner command;
    EXPECT_THAT(command.Run({"encode", "GS1-128", "AB"}).err, HasSubstr("application identifiers"));
    EXPECT_EQ(command.Run({"encode", "GS1-128", "(10)AB"}).err, "");
    EXPECT_EQ(command.Run({"encode", "code128", "AB"}).err, "");
    EXPECT_THAT(command.Run({"encode", "ITF-14", "1234"}).err, HasSubstr("14 digits"));
    EXPECT_EQ(command.Run({"encode", "ITF-14", "15400141288763"}).err, "");
    EXPECT_EQ(command.Run({"encode", "ITF-14", "1540014128876", "--check"}).err, "");
    EXPECT_EQ(command.Run({"encode", "i2of5", "1234"}).err, "");
}

TEST(Encode, BringsANumberToTheFormOfItsTypeWhenAsked) {
    const CommandRunner command;
    const auto made = command.Run({"encode", "isbn", "0-306-40615-2", "--gtin", "--strict"});
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.out, command.Run({"encode", "isbn", "9780306406157"}).out);
    EXPECT_EQ(made.err,
              "linewright: note: ISBN-10 0-306-40615-2 was brought to the type's form: "
              "9780306406157\n");
    const auto refused = command.Run({"encode", "ean13", "4006381333937", "--gtin"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(refused.err,
              "linewright: refused: the check digit of GTIN-13 4006381333937 is 7, and should be "
              "1\n");
    const auto object = command.Run({"encode", "code128", "4006381333931", "--gtin", "--json"});
    EXPECT_THAT(object.out, HasSubstr("\"note\":\"GTIN-13 4006381333931 was brought"));
    EXPECT_EQ(command.Run({"encode", "ean13", "0-306-40615-2"}).status, 1) << "not unasked";
}

TEST(Encode, WarnsByTheBeginningOfATypeNameAsThePlugInKnowsIt) {
    const CommandRunner command;
    for (const char* const type : {"_QVT_BARCODE_EAN13_", "_QVT_BARCODE_EAN13_ "}) {
        const auto strict = command.Run({"encode", type, "4006381333937", "--strict"});
        EXPECT_EQ(strict.status, 1) << type;
        EXPECT_EQ(strict.out, "") << type;
        EXPECT_THAT(strict.err, HasSubstr("the check digit 7 was replaced")) << type;
    }
}

// The check character of 60 "z" needs a sum above 16 bits: no scanner takes the symbol.
TEST(Encode, RefusesWhatNoScannerReadsWhenItIsStrict) {
    const auto result =
        CommandRunner().Run({"encode", "classic-code128b", std::string(60, 'z'), "--strict"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
}

TEST(Encode, SpeaksOneLanguage) {
    const CommandRunner command;
    const auto result =
        command.Run({"encode", "ean13", "4006381333937", "--strict", "--locale", "deDE"});
    EXPECT_EQ(result.err,
              "linewright: warning: die Prüfziffer 7 wurde durch die berechnete ersetzt, 1\n"
              "linewright: refused: es gibt eine Warnung, und Warnungen werden abgelehnt\n");
}

TEST(Encode, TakesAnyData) {
    const CommandRunner command;
    // Words of the command line's own, and what looks like an option behind "--".
    for (const char* const data : {"types", "stream", "set", "a=b", "[a,b]", "\"a\"", "%%"}) {
        const auto result = command.Run({"encode", "classic-code128b", data});
        EXPECT_EQ(result.status, 0) << data << result.err;
        EXPECT_THAT(result.out, HasSubstr(data));
    }
    const auto dashed = command.Run({"encode", "classic-codabar", "--", "-12"});
    EXPECT_EQ(dashed.out, "A-12D\n");
    const auto empty = command.Run({"encode", "classic-codabar", ""});
    EXPECT_EQ(empty.out, "AD\n");
    EXPECT_EQ(empty.err, "linewright: warning: the data is empty\n");
}

TEST(Encode, ReadsStandardInput) {
    const CommandRunner command;
    const std::vector<std::string> words{"encode", "classic-code128a", "-", "--hex"};
    const std::string ab = command.Run({"encode", "classic-code128a", "AB", "--hex"}).out;
    EXPECT_EQ(command.Run(words, "AB").out, ab);
    EXPECT_EQ(command.Run(words, "AB\n").out, ab);
    EXPECT_EQ(command.Run(words, "AB\r\n").out, ab);
    // 10 has the value 74 in set A: 103 + 33 + 2·34 + 3·74 = 426, check 14, byte 46.
    EXPECT_EQ(command.Run(words, "AB\n\n").out, "8741420a2e8a\n");
    EXPECT_EQ(command.Run({"encode", "classic-code128a", "-", "--hex", "--bytes"}, "AB\n").out,
              "8741420a2e8a\n");
}

TEST(Encode, ConvertsUnlessToldNotTo) {
    const CommandRunner command;
    EXPECT_EQ(command.Run({"encode", "classic-code39ascii", "a\u0080"}).out, "*+A8*\n")
        << "U+0080 becomes byte 128, which goes; + is 41, A is 10, 51 modulo 43 is 8";
    const auto bytes = command.Run({"encode", "classic-code39ascii", "a\u0080", "--bytes"});
    EXPECT_EQ(bytes.status, 1) << "byte 0xC2 has no pair";
}

TEST(Encode, SaysWhyItRefuses) {
    const CommandRunner command;
    const auto hint = command.Run({"encode", "imb", "1", "--locale", "qps"});
    EXPECT_EQ(hint.status, 1);
    EXPECT_EQ(hint.out, "");
    EXPECT_EQ(hint.err,
              "linewright: refused (status -6300): 0x122100kLWRBarCodeLengthBetweenHint|20|31\n");
    const auto words = command.Run({"encode", "classic-code39", "abc", "--hex"});
    EXPECT_EQ(words.status, 1);
    EXPECT_EQ(words.out, "");
    EXPECT_EQ(words.err, "linewright: refused (status -1): Bad Code 39\n");
    const auto sentence = command.Run({"encode", "imb", "012345670949876543211"});
    EXPECT_THAT(sentence.err, StartsWith("linewright: refused (status -6300): The Routing String"));
    const auto process = command.Run({"encode", "code128", ""});
    EXPECT_EQ(process.err, "linewright: refused (status 1000): Barcode Process Error\n");
}

TEST(Encode, PrintsAnObjectForARefusalToo) {
    const CommandRunner command;
    const auto run = [&](const char* type, const char* data) {
        const auto result =
            command.Run({"encode", type, data, "--json", "--strict", "--locale", "qps"});
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.err, HasSubstr("linewright: refused"));
        return json::parse(result.out);
    };
    const json none = json::array();
    const std::string hint = "0x122100kLWRBarCodeLengthBetweenHint|20|31";
    EXPECT_EQ(run("imb", "1"), (json{{"type", "_BARCODE_USPS_IM_"},
                                     {"shortName", "imb"},
                                     {"status", -6300},
                                     {"message", hint},
                                     {"hint", hint},
                                     {"warnings", none}}));
    EXPECT_EQ(run("classic-code39", "abc"), (json{{"type", "_BARCODE_CODE39_"},
                                                  {"shortName", "classic-code39"},
                                                  {"status", -1},
                                                  {"message", "Bad Code 39"},
                                                  {"hint", ""},
                                                  {"warnings", none}}));
    const json unknown = run("\x1B\xFF", "1");
    EXPECT_EQ(unknown["type"], "\x1B\uFFFD");
    EXPECT_EQ(unknown["shortName"], "");
    EXPECT_EQ(unknown["status"], nullptr);
    EXPECT_THAT(unknown["message"].get<std::string>(), StartsWith("there is no type"));
    const json strict = run("classic-codabar", "");
    EXPECT_EQ(strict["status"], nullptr);
    EXPECT_EQ(strict["message"], "there is a warning, and warnings are refused");
    EXPECT_EQ(strict["warnings"], json{"the data is empty"});
    EXPECT_FALSE(strict.contains("hex"));
}

TEST(Encode, OffersNamesForAnUnknownType) {
    const CommandRunner command;
    const auto result = command.Run({"encode", "eann13", "1"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err,
                StartsWith("linewright: refused: there is no type \"eann13\"; nearest: ean13, "));
    EXPECT_EQ(command.Run({"encode", "", "1"}).status, 1);
    EXPECT_EQ(command.Run({"encode", std::string(300, 'x'), "1"}).status, 1);
    EXPECT_EQ(command.Run({"encode", "_barcode_ean13_", "1"}).status, 1);
}

TEST(Encode, WarnsAndIsStrictWhenAsked) {
    const CommandRunner command;
    std::vector<std::string> words{"encode", "classic-code128b", "10€"};
    const auto lenient = command.Run(words);
    EXPECT_EQ(lenient.status, 0);
    EXPECT_NE(lenient.out, "");
    EXPECT_EQ(lenient.err, "linewright: warning: 1 character above U+00FF dropped: \"€\"\n");
    words.emplace_back("--strict");
    const auto strict = command.Run(words);
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(strict.out, "");
    EXPECT_EQ(strict.err,
              lenient.err + "linewright: refused: there is a warning, and warnings are refused\n");
}

TEST(Encode, ListsWarningsInJson) {
    const auto result = CommandRunner().Run({"encode", "ean13", "4006381333937", "--json"});
    EXPECT_EQ(json::parse(result.out)["warnings"],
              json({"the check digit 7 was replaced by the computed one, 1"}));
}

// The pairs of A, "wnnnnwnnwn", and of the start, "nwnnwnwnnn", at each ratio.
TEST(Encode, PassesCheckAndRatioOn) {
    const CommandRunner command;
    const auto run = [&](std::vector<std::string> more) {
        more.insert(more.begin(), {"encode", "code39", "A"});
        return command.Run(more).out;
    };
    EXPECT_EQ(run({}), "BAEEAEABAEBAEEA\n");
    EXPECT_EQ(run({"--ratio", "2"}), "BAEEAEABAEBAEEA\n");
    EXPECT_EQ(run({"--ratio", "2.5"}), "XWYYWYWXWYXWYYW\n");
    EXPECT_EQ(run({"--ratio", "3"}), "CAIIAIACAICAIIA\n");
    EXPECT_EQ(run({"--ratio", "3", "--check"}), "CAIIAIACAIIACAICAIIA\n");
}

TEST(Prefs, PrintsTheRecordInWords) {
    const CommandRunner command;
    const auto result = command.Run({"prefs"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    const std::string path = result.out.substr(0, result.out.find('\n'));
    EXPECT_THAT(path, StartsWith(command.Place("config")));
    EXPECT_TRUE(std::filesystem::exists(command.Folder() / "config" / "Corvane" / "Config" /
                                        "QVT Linewright.prf"));
    for (const char* const line :
         {"version           5\n", "lastData          \"Test Data\"\n", "showErrorAlerts   yes ",
          "code39CheckMode   mod43", "code39UseAsterisk yes", "i2of5CheckDigit   yes",
          "msiFirstCheck     mod10", "msiSecondCheck    none", "codabarStart      A ",
          "codabarStop       D "}) {
        EXPECT_THAT(result.out, HasSubstr(line));
    }
}

TEST(Prefs, AreSetAndHeeded) {
    const CommandRunner command;
    const auto set = command.Run({"prefs", "set", "codabarStart=B", "codabarStop=C",
                                  "code39CheckMode=none", "code39UseAsterisk=0"});
    EXPECT_EQ(set.status, 0) << set.err;
    EXPECT_THAT(set.out, HasSubstr("codabarStart      B "));
    EXPECT_EQ(command.Run({"encode", "classic-codabar", "12"}).out, "B12C\n");
    EXPECT_EQ(command.Run({"encode", "classic-code39", "A"}).out, "#A#\n");
    const std::string file = command.Read("config/Corvane/Config/QVT Linewright.prf");
    ASSERT_EQ(file.size(), 324U);
    EXPECT_EQ(file[308], 0);
    EXPECT_EQ(file[310], 0);
    EXPECT_EQ(file[318], 'B');
    EXPECT_EQ(file[320], 'C');
}

TEST(Prefs, RefuseWhatIsNotKnownAndSetAllOrNothing) {
    const CommandRunner command;
    command.Run({"prefs"});
    const std::string before = command.Read("config/Corvane/Config/QVT Linewright.prf");
    const std::vector<std::pair<std::string, std::string>> mistakes{
        {"code39CheckMode=mod11",
         "linewright: code39CheckMode cannot be \"mod11\"; it can be none, mod10, mod43\n"},
        {"code39CheckMode=3",
         "linewright: code39CheckMode cannot be \"3\"; it can be none, mod10, mod43\n"},
        {"codabarStop=E", "linewright: codabarStop cannot be \"E\"; it can be A, B, C, D\n"},
        {"showErrorAlerts=", "linewright: showErrorAlerts cannot be \"\"; it can be no, yes\n"},
        {"showErrorAlerts", "linewright: \"showErrorAlerts\" is not of the form NAME=VALUE\n"},
        {"lastData=x",
         "linewright: there is no preference \"lastData\"; there are showErrorAlerts, "
         "code39CheckMode, code39UseAsterisk, i2of5CheckDigit, msiFirstCheck, "
         "msiSecondCheck, codabarStart, codabarStop\n"},
    };
    for (const auto& [assignment, message] : mistakes) {
        const auto result = command.Run({"prefs", "set", "codabarStart=B", assignment});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, message);
    }
    EXPECT_EQ(command.Read("config/Corvane/Config/QVT Linewright.prf"), before);
}

TEST(Prefs, LieBesideTheApplicationWhereItHasTheFolder) {
    const CommandRunner command;
    const auto local = command.Folder() / "app" / "Plug-Ins" / "Corvane" / "Config";
    std::filesystem::create_directories(local);
    const auto result = command.Run({"prefs", "set", "msiSecondCheck=mod11"});
    EXPECT_THAT(result.out, StartsWith(command.Place("app")));
    EXPECT_TRUE(std::filesystem::exists(local / "QVT Linewright.prf"));
    EXPECT_FALSE(std::filesystem::exists(command.Folder() / "config" / "Corvane"));
}

}  // namespace

}  // namespace linewright
