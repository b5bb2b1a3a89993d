#include "tests/host/HostTest.h"

#include <fstream>
#include <iterator>
#include <random>

#include "ISession.h"

namespace fs = std::filesystem;

const std::string_view kDefinitions = R"(plugin = 0x99000

[[boss]]
name = "kStarterBoss"
class = 0x99001
interfaces = [{ name = "IStartupShutdownService", id = 0x0F03, implementation = 0x99000 }]

[[boss]]
name = "kSecondStarterBoss"
class = 0x99002
interfaces = [{ name = "IStartupShutdownService", id = 0x0F03, implementation = 0x99001 }]

[[boss]]
name = "kEchoBoss"
class = 0x99004
interfaces = [{ name = "IEcho", id = 0x99000, implementation = 0x99002 }]

[[boss]]
name = "kNoteBoss"
class = 0x99005
persistent = true
interfaces = [{ name = "INote", id = 0x99001, implementation = 0x99003 }]
)";

const std::string_view kTexts = R"("kGreeting" = "Grüße, €, 😀"
"kRange" = "from ^0 to ^1"
"kTurned" = "^2 before ^0, ^4 ^"
)";

std::string ToUtf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string ToUtf8(const PMString& text) {
    std::u32string characters;
    for (int32 i = 0; i < text.CharCount(); ++i) characters += char32_t{text.GetWChar(i)};
    return ToUtf8(fs::path(characters));
}

PMString FromUtf8(std::string_view text) {
    PMString result;
    const fs::path path(std::u8string(text.begin(), text.end()));
    for (const char32_t character : path.u32string()) result.AppendW(character);
    return result;
}

IDFile FileAt(const fs::path& path) {
    IDFile file;
    file.SetString(FromUtf8(ToUtf8(path)));
    return file;
}

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const fs::path& path, std::string_view content) {
    std::ofstream(path, std::ios::binary) << content;
}

InterfacePtr<IMemoryService> QueryMemory() {
    return InterfacePtr<IMemoryService>(GetExecutionContextSession(), UseDefaultIID());
}

HostTest::HostTest()
    : folder(fs::temp_directory_path() / ("host-test-" + std::to_string(std::random_device()()))) {
    plugIn = folder / u8"plug-in é" / fs::path(TEST_PLUG_IN).filename();
    fs::create_directories(plugIn.parent_path() / "resources" / "strings");
    fs::copy_file(TEST_PLUG_IN, plugIn);
    WriteResource("test.toml", kDefinitions);
    WriteResource("strings/enUS.toml", kTexts);
    pluginText = ToUtf8(plugIn);
    roamingText = ToUtf8(folder / "roaming");
    appText = ToUtf8(folder);
    settings.plugin = pluginText.c_str();
    settings.roamingFolder = roamingText.c_str();
    settings.appFolder = appText.c_str();
    settings.frontEnd = &frontEnd;
}

HostTest::~HostTest() {
    host::Faults::FailAllocation(0);
    host::Faults::FailIo(host::Faults::Io::kNone);
    host::Faults::TakeAway(host::Faults::Missing::kNothing);
    host.Stop();
    fs::remove_all(folder);
}

bool HostTest::Start() {
    return host.Start(settings);
}

void HostTest::WriteResource(const std::string& name, std::string_view content) const {
    WriteFile(plugIn.parent_path() / "resources" / name, content);
}

void StartedHostTest::TearDown() {
    const host::Leaks leaks = host.Stop();
    EXPECT_EQ(leaks.blocks, 0u);
    EXPECT_EQ(leaks.references, 0u);
}
