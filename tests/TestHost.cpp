#include "tests/TestHost.h"

#include <gtest/gtest.h>

#include <random>

#include "core/BarcodeTypeRegistry.h"

namespace linewright {

namespace {

std::string Utf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace

std::filesystem::path MakeTestFolder() {
    std::random_device random;
    auto folder = std::filesystem::temp_directory_path() /
                  ("linewright-test-" + std::to_string(random()) + std::to_string(random()));
    std::filesystem::create_directories(folder);
    return folder;
}

TestHost::TestHost(const char* locale, std::filesystem::path givenFolder)
    : ownsFolder(givenFolder.empty()),
      folder(ownsFolder ? MakeTestFolder() : std::move(givenFolder)) {
    std::filesystem::create_directories(RoamingFolder());
    std::filesystem::create_directories(AppFolder());
    const std::string roaming = Utf8(RoamingFolder());
    const std::string app = Utf8(AppFolder());
    if (!runningHost.Start({.plugin = LINEWRIGHT_PLUGIN,
                            .roamingFolder = roaming.c_str(),
                            .appFolder = app.c_str(),
                            .locale = locale,
                            .frontEnd = &recorder}))
        ADD_FAILURE() << runningHost.Error();
    BuildTypeRegistry();
}

TestHost::~TestHost() {
    host::Faults::FailAllocation(0);
    host::Faults::FailIo(host::Faults::Io::kNone);
    host::Faults::TakeAway(host::Faults::Missing::kNothing);
    const host::Leaks leaks = runningHost.Stop();
    EXPECT_EQ(leaks.blocks, 0u);
    EXPECT_EQ(leaks.references, 0u);
    if (ownsFolder) std::filesystem::remove_all(folder);
}

}  // namespace linewright
