#include "CreateObject.h"
#include "ISession.h"
#include "LocaleSetting.h"
#include "tests/host/HostTest.h"
#include "tests/host/TestPlugIn.h"

namespace fs = std::filesystem;

using StartTest = HostTest;

namespace {

std::vector<std::string> TextsOf(const host::RecordingFrontEnd& frontEnd) {
    std::vector<std::string> texts;
    for (const auto& alert : frontEnd.alerts) texts.push_back(alert.text);
    return texts;
}

std::string Replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string result(text);
    const std::size_t at = result.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return result.replace(at, from.size(), to);
}

using Texts = std::vector<std::string>;

}  // namespace

TEST_F(StartTest, RunsEveryStartUpServiceFirstAndShutsDownInReverse) {
    ASSERT_TRUE(Start()) << Error();
    EXPECT_EQ(TextsOf(frontEnd), (Texts{"kStarted", "kSecondStarted"}));
    {
        const InterfacePtr<IEcho> echo(static_cast<IEcho*>(CreateObject(kEchoBoss, IID_IECHO)));
        ASSERT_TRUE(echo);
        EXPECT_EQ(echo->CountStarts(), 1);
    }
    EXPECT_EQ(frontEnd.beeps, 0);
    const host::Leaks leaks = host.Stop();
    EXPECT_EQ(TextsOf(frontEnd),
              (Texts{"kStarted", "kSecondStarted", "kSecondStopped", "kStopped"}));
    EXPECT_EQ(frontEnd.beeps, 1) << "the plug-in was not unloaded";
    EXPECT_EQ(leaks.blocks, 0u);
    EXPECT_EQ(leaks.references, 0u);
}

TEST_F(StartTest, StartsAnewAfterAStop) {
    for (int run = 1; run <= 3; ++run) {
        ASSERT_TRUE(Start()) << Error();
        host.Stop();
        EXPECT_EQ(frontEnd.beeps, run);
    }
}

TEST_F(StartTest, AnswersNothingUnlessItRuns) {
    EXPECT_EQ(GetExecutionContextSession(), nullptr);
    EXPECT_EQ(CreateObject(kEchoBoss, IID_IECHO), nullptr);
    ASSERT_TRUE(Start()) << Error();
    EXPECT_NE(GetExecutionContextSession(), nullptr);
    host.Stop();
    EXPECT_EQ(GetExecutionContextSession(), nullptr);
    EXPECT_EQ(CreateObject(kEchoBoss, IID_IECHO), nullptr);
    EXPECT_EQ(host.Stop().blocks, 0u);
}

TEST_F(StartTest, RunsOneHostAtATime) {
    ASSERT_TRUE(Start()) << Error();
    host::Host second;
    EXPECT_FALSE(second.Start(settings));
    EXPECT_STREQ(second.Error(), "a host is running already");
    EXPECT_FALSE(Start());
    EXPECT_NE(GetExecutionContextSession(), nullptr);
}

TEST_F(StartTest, FailsWithoutTheLibrary) {
    settings.plugin = nullptr;
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), "no plug-in library is named");
    const std::string missing = ToUtf8(folder / "none.so");
    settings.plugin = missing.c_str();
    settings.locale = "xxXX";
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), "plug-in library missing: " + missing);
    settings.locale = nullptr;
    settings.plugin = pluginText.c_str();
    EXPECT_TRUE(Start());
    EXPECT_EQ(Error(), "");
}

TEST_F(StartTest, FailsWithALibraryThatIsNone) {
    fs::remove(plugIn);
    WriteFile(plugIn, "no library");
    EXPECT_FALSE(Start());
    EXPECT_TRUE(Error().starts_with("plug-in library cannot be loaded: " + pluginText + ": "))
        << Error();
}

TEST_F(StartTest, FailsWithoutGetPlugIn) {
    fs::copy_file(TEST_NO_ENTRY, plugIn, fs::copy_options::overwrite_existing);
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), "no plug-in, GetPlugIn is missing: " + pluginText);
}

TEST_F(StartTest, FailsWithoutDefinitions) {
    fs::remove_all(plugIn.parent_path() / "resources");
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(),
              "resource file missing: no .toml in " + ToUtf8(plugIn.parent_path() / "resources"));
}

TEST_F(StartTest, FailsWhenAServiceDoesAndStopsWhatWasStarted) {
    WriteFile(folder / "refuse", "");
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), "kStarterBoss failed to start");
    EXPECT_EQ(TextsOf(frontEnd), Texts{"kStarted"});
    EXPECT_EQ(frontEnd.beeps, 1) << "the plug-in was not unloaded";
    EXPECT_EQ(GetExecutionContextSession(), nullptr);
}

/** Definitions that do not fit, and what is said: after the file's name, from its line on. */
struct Misfit {
    std::string_view from;
    std::string_view to;
    std::string_view error;
};

class MisfitTest : public HostTest, public testing::WithParamInterface<Misfit> {};

TEST_P(MisfitTest, IsToldWithFileAndLine) {
    WriteResource("test.toml", Replaced(kDefinitions, GetParam().from, GetParam().to));
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), ToUtf8(plugIn.parent_path() / "resources" / "test.toml") +
                           std::string(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(
    Start, MisfitTest,
    testing::Values(
        Misfit{"plugin = 0x99000", "plugin = \"x\"",
               ", line 1: \"plugin\" is a number from 1 to 0xFFFFFFFF"},
        Misfit{"plugin = 0x99000", "plugin = 0x100000000",
               ", line 1: \"plugin\" is a number from 1 to 0xFFFFFFFF"},
        Misfit{"plugin = 0x99000", "plugins = 1", ", line 1: \"plugins\" is not known"},
        Misfit{"class = 0x99004", "klass = 0x99004", ", line 15: \"klass\" is not known"},
        Misfit{"class = 0x99004\n", "", ", line 13: \"class\" is missing"},
        Misfit{"name = \"kEchoBoss\"", "name = 7", ", line 14: \"name\" is a string"},
        Misfit{"persistent = true", "persistent = 1", ", line 21: \"persistent\" is true or false"},
        Misfit{"[{ name = \"IEcho\", id = 0x99000, implementation = 0x99002 }]", "7",
               ", line 16: \"interfaces\" is a list of tables"},
        Misfit{"{ name = \"IEcho\", id = 0x99000, implementation = 0x99002 }", "7",
               ", line 16: \"interfaces\" is a list of tables"},
        Misfit{"class = 0x99005", "class = 0x99004",
               ", line 18: class 0x99004 of kNoteBoss is already that of kEchoBoss"},
        Misfit{"interfaces = [{ name = \"IEcho\"",
               "interfaces = [{ name = \"IEcho\", id = 0x99000, implementation = 0x99002 },\n"
               "{ name = \"IEcho\"",
               ", line 17: interface 0x99000 stands twice in kEchoBoss"},
        Misfit{"implementation = 0x99002", "implementation = 0x99009",
               ", line 16: implementation 0x99009 is not registered by the plug-in"}));

TEST_F(StartTest, FailsWithDefinitionsThatAreNoToml) {
    WriteResource("test.toml", "plugin = 0x99000\n[[boss\n");
    EXPECT_FALSE(Start());
    EXPECT_TRUE(Error().starts_with(ToUtf8(plugIn.parent_path() / "resources" / "test.toml") +
                                    ", line 2: "))
        << Error();
}

/** What host/compile_resources.py makes of the definitions. */
constexpr std::string_view kCompiled =
    "{6:plugini626688;4:boss["
    "{4:name12:kStarterBoss5:classi626689;10:interfaces[{4:name23:IStartupShutdownService2:idi3843;"
    "14:implementationi626688;}]}"
    "{4:name18:kSecondStarterBoss5:classi626690;10:interfaces[{4:name23:IStartupShutdownService2:"
    "idi3843;14:implementationi626689;}]}"
    "{4:name9:kEchoBoss5:classi626692;10:interfaces[{4:name5:IEcho2:idi626688;14:"
    "implementationi626690;}]}"
    "{4:name9:kNoteBoss5:classi626693;10:persistentt10:interfaces[{4:name5:INote2:idi626689;14:"
    "implementationi626691;}]}]}";

class CompiledTest : public StartTest {
  protected:
    CompiledTest() {
        fs::remove_all(Resource("test.toml"));
        fs::remove_all(Resource("strings/enUS.toml"));
        WriteResource("strings/enUS.resource",
                      "{9:kGreeting7:Gr\xC3\xBC\xC3\x9F"
                      "e}");
    }
    fs::path Resource(const char* name) const { return plugIn.parent_path() / "resources" / name; }
    /** What is said of the compiled definitions. */
    std::string ErrorOf(std::string_view content) {
        WriteResource("test.resource", content);
        if (Start()) return "";
        const std::string name = ToUtf8(Resource("test.resource"));
        EXPECT_TRUE(Error().starts_with(name)) << Error();
        return Error().substr(name.size());
    }
};

TEST_F(CompiledTest, IsReadAsTheToml) {
    EXPECT_EQ(ErrorOf(kCompiled), "");
    EXPECT_EQ(ToUtf8(PMString("kGreeting")),
              "Gr\xC3\xBC\xC3\x9F"
              "e");
    EXPECT_EQ(host::CountLocales(), 2);
}

TEST_F(CompiledTest, TakesThePlaceOfTheToml) {
    WriteResource("test.toml", kDefinitions);
    WriteResource("strings/enUS.toml", kTexts);
    EXPECT_EQ(ErrorOf(kCompiled), "");
    EXPECT_EQ(host::CountLocales(), 2);
    EXPECT_EQ(ToUtf8(PMString("kRange")), "kRange");
}

TEST_F(CompiledTest, IsRefusedWithoutItsLine) {
    EXPECT_EQ(ErrorOf(Replaced(kCompiled, "4:name9:kEchoBoss", "4:namei9;")),
              ": \"name\" is a string");
}

TEST_F(CompiledTest, IsRefusedWhereItIsDamaged) {
    constexpr std::string_view kDamaged = ": a damaged resource file";
    for (std::size_t size = 0; size < kCompiled.size(); size += size < 40 ? 1 : 7)
        ASSERT_EQ(ErrorOf(kCompiled.substr(0, size)), kDamaged) << size;
    for (const std::string_view content :
         {"{}x", "{1:ax}", "{1:ai1}", "{99999999999999999999:a}", "{5:ab}", "{1:a[", "{-1:at}"})
        EXPECT_EQ(ErrorOf(content), kDamaged) << content;
    EXPECT_EQ(ErrorOf("{1:a" + std::string(100'000, '[')), kDamaged);
}

TEST_F(StartTest, FailsWithAnImplementationThatNoClassUses) {
    WriteResource("test.toml", kDefinitions.substr(0, kDefinitions.rfind("[[boss]]")));
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(),
              "implementation 0x99003 (Note) is registered by the plug-in but used by no "
              "class in " +
                  ToUtf8(plugIn.parent_path() / "resources"));
}

TEST_F(StartTest, FailsWithAnImplementationRegisteredTwice) {
    fs::copy_file(TEST_TWICE, plugIn, fs::copy_options::overwrite_existing);
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), "implementation 0x99000 is registered twice by the plug-in");
}

TEST_F(StartTest, FailsWithAnUnknownLocaleAndListsThoseThereAre) {
    WriteResource("strings/deDE.toml", "");
    settings.locale = "xxXX";
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), "locale \"xxXX\" is unknown; there are: deDE, enUS, qps");
}

TEST_F(StartTest, NumbersLocalesByTheirPlaceInTheList) {
    WriteResource("strings/deDE.toml", "");
    int32 number = 0;
    for (const char* locale : {"deDE", "enUS", "qps"}) {
        settings.locale = locale;
        ASSERT_TRUE(Start()) << Error();
        EXPECT_EQ(WLocaleSetting::GetLocale(), number++) << locale;
        host.Stop();
    }
    settings.locale = nullptr;
    ASSERT_TRUE(Start()) << Error();
    EXPECT_EQ(WLocaleSetting::GetLocale(), 1);
}

TEST_F(StartTest, TakesAPlugInWithoutTextsForEnglish) {
    fs::remove_all(plugIn.parent_path() / "resources" / "strings");
    ASSERT_TRUE(Start()) << Error();
    EXPECT_EQ(ToUtf8(PMString("kGreeting")), "kGreeting");
}

TEST_F(StartTest, FailsWithTextsThatAreNone) {
    WriteResource("strings/enUS.toml", "\"kA\" = \"a\"\n\"kB\" = 7\n");
    const std::string file = ToUtf8(plugIn.parent_path() / "resources" / "strings" / "enUS.toml");
    EXPECT_FALSE(Start());
    EXPECT_EQ(Error(), file + ", line 2: the text of a key is a string");
    WriteResource("strings/enUS.toml", "\"kA\" = \"a\"\n\"kA\" = \"b\"\n");
    EXPECT_FALSE(Start());
    EXPECT_TRUE(Error().starts_with(file + ", line 2: ")) << Error();
}
