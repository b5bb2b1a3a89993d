#include "CAlert.h"
#include "files/FolderLock.h"
#include "host/runtime/FrontEnd.h"
#include "tests/host/HostTest.h"

namespace {

/** Notes whether another could lock the folder while it shows something, and while it beeps. */
class LockingFrontEnd final : public host::FrontEnd {
  public:
    explicit LockingFrontEnd(std::filesystem::path lockedFolder)
        : folder(std::move(lockedFolder)) {}

    void ShowAlert(host::AlertKind, const char*) override { isFree.push_back(IsFree()); }
    void Beep() override { isFreeAtBeep.push_back(IsFree()); }
    bool IsFree() const { return files::FolderLock(folder, {}).IsHeld(); }

    std::vector<bool> isFree;
    std::vector<bool> isFreeAtBeep;

  private:
    std::filesystem::path folder;
};

}  // namespace

class SettingsLockTest : public HostTest {
  protected:
    SettingsLockTest() { settings.frontEnd = &user; }
    ~SettingsLockTest() override { host.Stop(); }

    LockingFrontEnd user{folder / "roaming"};
};

TEST_F(SettingsLockTest, IsLetGoOfWhileTheUserIsAsked) {
    ASSERT_TRUE(Start()) << Error();
    EXPECT_EQ(user.isFree, (std::vector<bool>{true, true})) << "alerts of start-up";
    EXPECT_TRUE(user.IsFree());
    {
        const host::SettingsLock lock;
        EXPECT_FALSE(user.IsFree());
        { const host::SettingsLock inner; }
        EXPECT_FALSE(user.IsFree());
        CAlert::InformationAlert(PMString("kGreeting"));
        EXPECT_TRUE(user.isFree.back());
        EXPECT_FALSE(user.IsFree()) << "it is not taken again";
    }
    EXPECT_TRUE(user.IsFree());
}

TEST_F(SettingsLockTest, IsHeldWhileAServiceStarts) {
    WriteFile(folder / "beep", "");
    ASSERT_TRUE(Start()) << Error();
    EXPECT_EQ(user.isFreeAtBeep, std::vector<bool>{false});
}
