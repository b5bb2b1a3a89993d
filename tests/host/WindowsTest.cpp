// What the host does on Windows only.

#include <stdlib.h>

#include "FileUtils.h"
#include "tests/host/HostTest.h"

namespace fs = std::filesystem;

using RoamingFolderTest = HostTest;

TEST_F(RoamingFolderTest, LiesBelowTheUsersApplicationData) {
    const fs::path data = folder / u8"données 日本";
    _wputenv((L"APPDATA=" + data.wstring()).c_str());
    settings.roamingFolder = nullptr;
    ASSERT_TRUE(Start()) << Error();
    IDFile found;
    ASSERT_TRUE(FileUtils::GetAppRoamingDataFolder(&found));
    EXPECT_EQ(fs::path(ToUtf8(found.GetString())).filename(), "Linewright Host");
    EXPECT_TRUE(fs::is_directory(data / "Linewright Host"));
}

TEST_F(RoamingFolderTest, IsUnknownWithoutApplicationData) {
    _wputenv(L"APPDATA=");
    settings.roamingFolder = nullptr;
    ASSERT_TRUE(Start()) << Error();
    IDFile found;
    EXPECT_FALSE(FileUtils::GetAppRoamingDataFolder(&found));
}
