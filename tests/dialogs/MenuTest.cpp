#include <cstring>

#include "CreateObject.h"
#include "InterfacePtr.h"
#include "PlugIn.h"
#include "core/IORTALinewright.h"
#include "tests/dialogs/DialogTest.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace linewright {

namespace {

class MenuTest : public DialogTest {
  protected:
    /** Does what opens a dialog and returns the dialogs that opened: id and type. */
    std::vector<std::pair<RsrcID, int>> Opened(const std::function<void()>& act) {
        std::vector<std::pair<RsrcID, int>> opened;
        host->recorder.useDialog = [&](ShownDialog& dialog) {
            opened.emplace_back(dialog.GetResourceID(), dialog.GetType());
        };
        act();
        host->recorder.useDialog = nullptr;
        return opened;
    }
    std::vector<std::pair<RsrcID, int>> OpenedBy(ActionID action) {
        return Opened([action] { EXPECT_TRUE(host::DoAction(action)); });
    }
    static void OpenByRequest() {
        const InterfacePtr<IORTALinewright> service(static_cast<IORTALinewright*>(
            CreateObject(kLinewrightServiceBoss, IID_IORTALINEWRIGHT)));
        LinewrightRequest request{-7, kOpenDialogRequest, nullptr};
        service->ProcessRequest(&request);
        EXPECT_EQ(request.result, 0);
    }
};

TEST_F(MenuTest, OffersBothDialogs) {
    Start();
    ASSERT_EQ(host::CountMenuItems(), 2);
    const host::MenuItem utility = host::GetMenuItem(0);
    EXPECT_EQ(Latin1(utility.menu), "0x122100kLWRMenuKey");
    EXPECT_EQ(Latin1(utility.text), "0x122100kLWRMenuUtilityKey");
    EXPECT_EQ(utility.action, 0x122105u);
    const host::MenuItem preferencesItem = host::GetMenuItem(1);
    EXPECT_EQ(Latin1(preferencesItem.menu), "0x122100kLWRMenuKey");
    EXPECT_EQ(Latin1(preferencesItem.text), "0x122100kLWRMenuPreferencesKey");
    EXPECT_EQ(preferencesItem.action, 0x122104u);
    EXPECT_EQ(host::GetMenuItem(2).action, 0u);
    EXPECT_EQ(host::GetMenuItem(-1).action, 0u);
}

TEST_F(MenuTest, ActionsOpenTheirDialogs) {
    using testing::ElementsAre;
    using testing::Pair;
    Start();
    EXPECT_THAT(OpenedBy(0x122104), ElementsAre(Pair(250, 1)));
    EXPECT_THAT(OpenedBy(0x122105), ElementsAre(Pair(251, 2)));
    EXPECT_THAT(Opened(OpenByRequest), ElementsAre(Pair(251, 2)));
    for (const ActionID other : {0u, 0x122100u, 0x122103u, 0x122106u, 0x22104u})
        EXPECT_TRUE(OpenedBy(other).empty());
}

TEST_F(MenuTest, NothingOpensWhereThereIsNobodyToOpenIt) {
    using Missing = host::Faults::Missing;
    Start();
    for (const Missing missing :
         {Missing::kSession, Missing::kApplication, Missing::kDialogManager}) {
        host::Faults::TakeAway(missing);
        EXPECT_TRUE(OpenedBy(0x122104).empty());
        EXPECT_TRUE(OpenedBy(0x122105).empty());
        EXPECT_TRUE(Opened(OpenByRequest).empty());
    }
    EXPECT_TRUE(host->recorder.alerts.empty());
    host::Faults::TakeAway(Missing::kNothing);
    EXPECT_EQ(OpenedBy(0x122104).size(), 1u);
}

TEST_F(MenuTest, NothingRunsWithoutAHost) {
    EXPECT_EQ(host::CountMenuItems(), 0);
    EXPECT_EQ(host::GetMenuItem(0).action, 0u);
    EXPECT_FALSE(host::DoAction(0x122104));
}

/** The plug-in of the library that the running host has loaded. */
PlugIn* LoadedPlugIn() {
    PlugIn* (*entry)() = nullptr;
#ifdef _WIN32
    const auto found = GetProcAddress(GetModuleHandleA("Linewright.dll"), "GetPlugIn");
#else
    void* const library = dlopen(LINEWRIGHT_PLUGIN, RTLD_NOW | RTLD_NOLOAD);
    void* const found = dlsym(library, "GetPlugIn");
    dlclose(library);
#endif
    static_assert(sizeof found == sizeof entry);
    std::memcpy(&entry, &found, sizeof entry);
    return entry();
}

TEST(Registration, IsInTheStatedOrder) {
    const TestHost host;
    std::vector<std::pair<ImplementationID, std::string>> registered;
    const ImplementationRecord* record = LoadedPlugIn()->GetImplementations();
    for (; record; record = record->next) registered.emplace_back(record->id, record->className);
    const std::vector<std::pair<ImplementationID, std::string>> expected{
        {0x122100, "LWRActionComponent"},       {0x122101, "LWRPrefsDialogController"},
        {0x122102, "LWRPrefsDialogObserver"},   {0x122103, "LWRUtilityDialogController"},
        {0x122104, "LWRUtilityDialogObserver"}, {0x122106, "LWRAppPrefs"},
        {0x122107, "LWRStartupShutdown"},       {0x122105, "ORTALinewright"},
    };
    EXPECT_EQ(registered, expected);
}

}  // namespace

}  // namespace linewright
