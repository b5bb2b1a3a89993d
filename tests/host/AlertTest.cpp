#include "CAlert.h"
#include "SysBeep.h"
#include "tests/host/HostTest.h"

namespace {

using Alert = host::RecordingFrontEnd::Alert;

}  // namespace

/** A started host that has shown nothing yet. */
class AlertTest : public StartedHostTest {
  protected:
    void SetUp() override {
        StartedHostTest::SetUp();
        frontEnd.alerts.clear();
    }
};

TEST_F(AlertTest, ShowsEachKind) {
    EXPECT_EQ(CAlert::InformationAlert(PMString("kA")), 1);
    EXPECT_EQ(CAlert::WarningAlert(PMString("kB")), 1);
    EXPECT_EQ(CAlert::ErrorAlert(PMString("kC")), 1);
    EXPECT_EQ(frontEnd.alerts, (std::vector<Alert>{{host::AlertKind::kInformation, "kA"},
                                                   {host::AlertKind::kWarning, "kB"},
                                                   {host::AlertKind::kError, "kC"}}));
}

TEST_F(AlertTest, TranslatesAKeyButNotTheCallersOwn) {
    PMString key("kGreeting", PMString::kDontTranslateDuringCall);
    CAlert::ErrorAlert(key);
    EXPECT_EQ(frontEnd.alerts.at(0).text, "Grüße, €, 😀");
    EXPECT_TRUE(key.IsTranslatable());
    PMString plain;
    plain.SetCString("kGreeting");
    CAlert::ErrorAlert(plain);
    EXPECT_EQ(frontEnd.alerts.at(1).text, "kGreeting");
}

TEST_F(AlertTest, ShowsNothingWhileSwitchedOff) {
    EXPECT_TRUE(CAlert::GetShowAlerts());
    CAlert::SetShowAlerts(kFalse);
    EXPECT_FALSE(CAlert::GetShowAlerts());
    EXPECT_EQ(CAlert::ErrorAlert(PMString("kA")), 1);
    EXPECT_TRUE(frontEnd.alerts.empty());
    CAlert::SetShowAlerts(kTrue);
    CAlert::ErrorAlert(PMString("kA"));
    EXPECT_EQ(frontEnd.alerts.size(), 1u);
}

TEST_F(AlertTest, IsSwitchedOnAgainByTheNextStart) {
    CAlert::SetShowAlerts(kFalse);
    host.Stop();
    ASSERT_TRUE(Start());
    EXPECT_TRUE(CAlert::GetShowAlerts());
}

TEST_F(AlertTest, ShowsWhatIsNoCharacterAsReplacement) {
    PMString text;
    text.AppendW(0xD800);
    text.AppendW(0x110000);
    text.AppendW('x');
    CAlert::WarningAlert(text);
    EXPECT_EQ(frontEnd.alerts.at(0).text, "\xEF\xBF\xBD\xEF\xBF\xBDx");
}

TEST_F(AlertTest, Beeps) {
    SysBeep();
    SysBeep();
    EXPECT_EQ(frontEnd.beeps, 2);
}

using ConsoleTest = HostTest;

TEST_F(ConsoleTest, IsTheDefaultAndWritesToStandardError) {
    settings.frontEnd = nullptr;
    testing::internal::CaptureStderr();
    ASSERT_TRUE(Start()) << Error();
    CAlert::InformationAlert(PMString("kA"));
    CAlert::WarningAlert(PMString("kGreeting"));
    CAlert::ErrorAlert(PMString("kC"));
    SysBeep();  // unheard, since this is no terminal
    host.Stop();
    std::string written = testing::internal::GetCapturedStderr();
    std::erase(written, '\r');
    EXPECT_EQ(written,
              "note: kStarted\nnote: kSecondStarted\n"
              "note: kA\nwarning: Grüße, €, 😀\nerror: kC\n"
              "note: kSecondStopped\nnote: kStopped\n");
}

TEST(AlertWithoutHostTest, DoesNothing) {
    EXPECT_EQ(CAlert::ErrorAlert(PMString("kA")), 1);
    EXPECT_FALSE(CAlert::GetShowAlerts());
    CAlert::SetShowAlerts(kTrue);
    EXPECT_FALSE(CAlert::GetShowAlerts());
    SysBeep();
}
