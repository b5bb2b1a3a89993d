// What the host does on Linux only: folders of the XDG Base Directory Specification, links, and
// the bell of a terminal.

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>

#include "FileUtils.h"
#include "StreamUtil.h"
#include "SysBeep.h"
#include "tests/host/HostTest.h"

namespace fs = std::filesystem;

namespace {

/** Sets an environment variable, or removes it for nullptr, as long as this lives. */
class Variable {
  public:
    Variable(const char* variable, const char* value) : name(variable) {
        if (const char* present = getenv(variable)) before = present;
        Set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { Set(before ? before->c_str() : nullptr); }

  private:
    void Set(const char* value) const {
        if (value) {
            setenv(name, value, 1);
        } else {
            unsetenv(name);
        }
    }

    const char* name;
    std::optional<std::string> before;
};

}  // namespace

class RoamingFolderTest : public HostTest {
  protected:
    /** The roaming folder under two variables; "" when there is none. */
    std::string Find(const char* configHome, const char* home) {
        const Variable first("XDG_CONFIG_HOME", configHome);
        const Variable second("HOME", home);
        settings.roamingFolder = nullptr;
        EXPECT_TRUE(Start()) << Error();
        IDFile found;
        const bool16 isThere = FileUtils::GetAppRoamingDataFolder(&found);
        host.Stop();
        return isThere ? ToUtf8(found.GetString()) : "";
    }
};

TEST_F(RoamingFolderTest, LiesBelowTheUsersConfiguration) {
    const std::string config = ToUtf8(folder / "config");
    const std::string home = ToUtf8(folder / "home");
    EXPECT_EQ(Find(config.c_str(), home.c_str()), config + "/Linewright Host");
    EXPECT_TRUE(fs::is_directory(folder / "config" / "Linewright Host"));
    EXPECT_FALSE(fs::exists(folder / "home"));
}

TEST_F(RoamingFolderTest, IgnoresAConfigurationFolderThatIsNotAbsolute) {
    const std::string home = ToUtf8(folder / "home");
    const std::string relative = ToUtf8(folder.filename());
    for (const char* ignored : {relative.c_str(), "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(Find(ignored, home.c_str()), home + "/.config/Linewright Host");
    }
    EXPECT_TRUE(fs::is_directory(folder / "home" / ".config" / "Linewright Host"));
    EXPECT_FALSE(fs::exists(relative));
}

TEST_F(RoamingFolderTest, IsUnknownToAUserWithoutAHome) {
    EXPECT_EQ(Find(nullptr, nullptr), "");
}

using LinkTest = StartedHostTest;

TEST_F(LinkTest, StaysWhenTheFileBehindItIsWritten) {
    WriteFile(folder / "file", "old");
    fs::create_symlink("file", folder / "link");
    const InterfacePtr<IPMStream> stream(
        StreamUtil::CreateFileStreamWrite(FileAt(folder / "link"), kOpenOut | kOpenTrunc, 0, 0));
    ASSERT_TRUE(stream);
    uchar byte = 'x';
    stream->XferByte(&byte, 1);
    stream->Close();
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(ReadFile(folder / "file"), "x");
}

TEST_F(LinkTest, ToADeviceIsNoFileToReplace) {
    EXPECT_EQ(StreamUtil::CreateFileStreamWrite(FileAt("/dev/null"), kOpenOut | kOpenTrunc, 0, 0),
              nullptr);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

namespace {

/** Whether a byte arrives within five seconds. */
bool Hears(int handle, char expected) {
    pollfd input{handle, POLLIN, 0};
    char byte = 0;
    while (poll(&input, 1, 5000) == 1 && read(handle, &byte, 1) == 1) {
        if (byte == expected) return true;
    }
    return false;
}

}  // namespace

using TerminalTest = HostTest;

TEST_F(TerminalTest, Beeps) {
    settings.frontEnd = nullptr;
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(master, 0);
    ASSERT_EQ(grantpt(master), 0);
    ASSERT_EQ(unlockpt(master), 0);
    const int terminal = open(ptsname(master), O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);

    const int before = dup(STDERR_FILENO);
    dup2(terminal, STDERR_FILENO);
    const bool started = Start();
    SysBeep();
    host.Stop();
    dup2(before, STDERR_FILENO);
    EXPECT_TRUE(started) << Error();

    EXPECT_TRUE(Hears(master, '\a'));
    for (const int handle : {before, terminal, master}) close(handle);
}
