#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "IDFile.h"
#include "IMemoryService.h"
#include "InterfacePtr.h"
#include "host/runtime/Host.h"
#include "host/runtime/RecordingFrontEnd.h"

/** The resource definitions of the test plug-in. */
extern const std::string_view kDefinitions;
/** Its texts in the locale enUS. */
extern const std::string_view kTexts;

std::string ToUtf8(const std::filesystem::path& path);
std::string ToUtf8(const PMString& text);
PMString FromUtf8(std::string_view text);
IDFile FileAt(const std::filesystem::path& path);
std::string ReadFile(const std::filesystem::path& path);
void WriteFile(const std::filesystem::path& path, std::string_view content);
InterfacePtr<IMemoryService> QueryMemory();

/** A test with a copy of the test plug-in in a folder of its own, and a host that is not started.
 */
class HostTest : public testing::Test {
  protected:
    HostTest();
    ~HostTest() override;

    /** Starts the host with the settings as they are; a failure is in Error(). */
    bool Start();
    std::string Error() const { return host.Error(); }
    /** Writes a file of the plug-in's resources. */
    void WriteResource(const std::string& name, std::string_view content) const;

    std::filesystem::path folder;
    std::filesystem::path plugIn;
    std::string pluginText;
    std::string roamingText;
    std::string appText;
    host::RecordingFrontEnd frontEnd;
    host::Settings settings;
    host::Host host;
};

/** The same, started; at the end nothing may be left alive. */
class StartedHostTest : public HostTest {
  protected:
    void SetUp() override { ASSERT_TRUE(Start()) << Error(); }
    void TearDown() override;
};
