#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/DialogStep.h"
#include "merge/Failure.h"
#include "tests/cli/CommandRunner.h"

namespace linewright {

namespace {

using nlohmann::json;
using testing::HasSubstr;

const json& WidgetOf(const json& state, const std::string& id) {
    for (const json& widget : state.at("widgets"))
        if (widget.at("id") == id) return widget;
    throw std::out_of_range(id);
}

std::vector<json> LinesOf(const std::string& text) {
    std::vector<json> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(json::parse(line));
    return lines;
}

TEST(DialogStep, IdsAreHexadecimalOrDecimal) {
    EXPECT_EQ(ParseDialogID("0x12211D"), 0x12211Du);
    EXPECT_EQ(ParseDialogID("0X12211d"), 0x12211Du);
    EXPECT_EQ(ParseDialogID("251"), 251u);
    for (const char* const wrong : {"", "0x", "-1", "+1", " 1", "1 ", "12211D", "4294967296"})
        EXPECT_EQ(ParseDialogID(wrong), std::nullopt) << wrong;
}

TEST(DialogStep, SaysWhatIsWrongWithALine) {
    const auto why = [](const char* line) -> std::string {
        try {
            ParseScriptStep(line);
            return "";
        } catch (const Failure& failure) {
            return failure.what();
        }
    };
    EXPECT_EQ(why("{"), "no valid JSON from byte 2 on");
    EXPECT_EQ(why("{}"), "no object with a step stands here");
    EXPECT_EQ(why("1"), "no object with a step stands here");
    EXPECT_EQ(why(R"({"set":1})"), "\"set\" goes with \"value\" and nothing else");
    EXPECT_EQ(why(R"({"set":1,"value":1.5})"),
              "\"value\" is not a text, a whole number or a boolean");
    EXPECT_EQ(why(R"({"set":-1,"value":1})"), "an id is a number, or a text such as \"0x12211D\"");
    EXPECT_EQ(why(R"({"set":1,"value":[1]})"), "a member is a list or an object; none may be");
    EXPECT_EQ(why(R"({"ok":1})"), "\"ok\" is not true");
    EXPECT_EQ(why(R"({"ok":true,"cancel":true})"), "a line has one step");
    EXPECT_EQ(why(R"({"close":true})"),
              "there is no step \"close\"; the steps are set, press, open, ok, cancel, show");
}

TEST(Dialog, ConvertsStepByStepInTheOrderOfTheCommandLine) {
    const auto result =
        CommandRunner().Run({"dialog", "251", "--set", "0x12211D=EAN-13", "--set",
                             "0x122119=4006381333931", "--ok", "--set", "0x122119=left", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    const json state = json::parse(result.out);
    EXPECT_EQ(state.at("dialog"), 251);
    EXPECT_EQ(state.at("open"), true);
    EXPECT_EQ(WidgetOf(state, "0x12211D").at("index"), 19);
    EXPECT_EQ(WidgetOf(state, "0x12211D").at("items").size(), 27u);
    EXPECT_EQ(WidgetOf(state, "0x122119").at("value"), "left");
    EXPECT_EQ(WidgetOf(state, "0x12211B").at("value"), "Y(0A63IB*NNNTNL(");
    EXPECT_EQ(WidgetOf(state, "0x122121").at("enabled"), false);
    EXPECT_EQ(WidgetOf(state, "0x122121").at("value"), 2);
    EXPECT_EQ(WidgetOf(state, "0x122115").at("visible"), false);
    EXPECT_EQ(state.at("alerts"), json::array());
}

TEST(Dialog, SavesPreferencesOnOKOnly) {
    const CommandRunner command;
    auto result = command.Run(
        {"dialog", "250", "--set", "0x122107=0", "--set", "0x122108=off", "--cancel", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(json::parse(result.out).at("open"), false);
    EXPECT_THAT(command.Run({"prefs"}).out, HasSubstr("mod43"));
    result = command.Run({"dialog", "250", "--set", "0x122107=None", "--set", "0x122108=off",
                          "--set", "0x12210F=Modulo 11", "--ok"});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("dialog 250  \"Linewright Preferences\"  closed\n"));
    EXPECT_THAT(result.out, HasSubstr("0x122108  checkBox     enabled   0\n"));
    const json state = json::parse(command.Run({"dialog", "250", "--json"}).out);
    EXPECT_EQ(WidgetOf(state, "0x122107").at("index"), 0);
    EXPECT_EQ(WidgetOf(state, "0x122108").at("value"), 0);
    EXPECT_EQ(WidgetOf(state, "0x12210F").at("index"), 2);
}

TEST(Dialog, ShowsAlertsAndBeeps) {
    const auto result =
        CommandRunner().Run({"--locale", "qps", "dialog", "251", "--set", "0x12211D=19", "--set",
                             "0x122119=1\u20ACx", "--ok", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    const json state = json::parse(result.out);
    EXPECT_EQ(state.at("beeps"), 1);
    EXPECT_EQ(WidgetOf(state, "0x122119").at("value"), "1x");
    ASSERT_EQ(state.at("alerts").size(), 1u);
    EXPECT_EQ(state.at("alerts")[0].at("kind"), "error");
    EXPECT_EQ(state.at("alerts")[0].at("text"),
              "0x122100kLWRErrorBarCodeInvalidData|0x122100kLWRUtilityTypePopupItem9Key|"
              "0x122100kLWRBarCodeDataDigitsOnlyHint");
}

TEST(Dialog, StepsThatCannotBeDoneEndIt) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> mistakes{
        {{"252"}, "252"},
        {{"251", "--script", "x"}, "x"},
        {{"251", "--set", "0x122119"}, "there is no ="},
        {{"251", "--set", "x=1"}, "\"x\" is no number of a widget"},
        {{"251", "--set", "0x122100=1"}, "dialog 251 has no widget 0x122100"},
        {{"251", "--set", "0x12211B=1"}, "0x12211B is a resultBox"},
        {{"251", "--set", "0x12211D=27"}, "0x12211D has no item \"27\""},
        {{"251", "--set", "0x12211D=-1"}, "0x12211D has no item \"-1\""},
        {{"251", "--set", "0x122121=maybe"}, "0x122121 is on or off"},
        {{"251", "--set", "0x122119=\xFF"}, "not UTF-8"},
        {{"251", "--press", "0x122119"}, "0x122119 is no button"},
        {{"251", "--press", "0x122115"}, "0x122115 is hidden"},
        {{"250", "--set", "0x122111=2"}, "0x122111 is hidden or disabled, or its item is"},
        {{"250", "--ok", "--ok"}, "no dialog is open"},
        {{"251", "--press", "0x122116", "--set", "0x12211D=1"}, "dialog 250 has no widget"},
    };
    for (const auto& [words, why] : mistakes) {
        std::vector<std::string> all{"dialog"};
        all.insert(all.end(), words.begin(), words.end());
        const auto result = CommandRunner().Run(all);
        EXPECT_EQ(result.status, 2) << why;
        EXPECT_EQ(result.out, "") << why;
        EXPECT_THAT(result.err, HasSubstr(why));
    }
}

TEST(Dialog, AScriptAnswersEachLineByOne) {
    const CommandRunner command;
    const auto result = command.Run({"dialog", "251", "--script", "-"},
                                    "{\"set\":\"0x12211D\",\"value\":16}\n"
                                    "{\"set\":1188121,\"value\":\"abc\"}\n"
                                    "{\"ok\":true}\n"
                                    "{\"press\":\"0x122116\"}\n"
                                    "{\"set\":\"0x122102\",\"value\":false}\n"
                                    "{\"ok\":true}\n"
                                    "oops\n"
                                    "{\"ok\":true}\n"
                                    "{\"cancel\":true}\n"
                                    "{\"show\":true}\n"
                                    "{\"ok\":true}\n"
                                    "{\"open\":250}\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "");
    const std::vector<json> lines = LinesOf(result.out);
    ASSERT_EQ(lines.size(), 12u);
    EXPECT_EQ(WidgetOf(lines[0], "0x12211D").at("value"), "Code 39");
    EXPECT_EQ(WidgetOf(lines[1], "0x122119").at("value"), "abc");
    EXPECT_EQ(lines[2].at("alerts").size(), 1u);
    EXPECT_EQ(lines[3].at("dialog"), 250);
    EXPECT_EQ(WidgetOf(lines[4], "0x122102").at("value"), 0);
    EXPECT_EQ(lines[5].at("dialog"), 251);
    EXPECT_EQ(lines[6].at("error"), "line 7: no valid JSON from byte 1 on");
    // The preferences now say that errors are not reported.
    EXPECT_EQ(lines[7].at("alerts"), json::array());
    EXPECT_EQ(WidgetOf(lines[7], "0x12211B").at("value"), "** Barcode Data Error **");
    EXPECT_EQ(lines[8].at("open"), false);
    EXPECT_EQ(lines[9].at("dialog"), 251);
    EXPECT_EQ(lines[10].at("error"), "line 11: no dialog is open");
    EXPECT_EQ(lines[11].at("dialog"), 250);
    EXPECT_EQ(lines[11].at("open"), true);
    EXPECT_EQ(WidgetOf(lines[11], "0x122102").at("value"), 0);
}

TEST(Dialog, AScriptMayBeEmpty) {
    const auto result = CommandRunner().Run({"dialog", "250", "--script", "-"}, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
}

}  // namespace

}  // namespace linewright
