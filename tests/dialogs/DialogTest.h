#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "core/PluginID.h"
#include "core/PreferencesRecord.h"
#include "host/runtime/Menus.h"
#include "tests/HostStrings.h"
#include "tests/TestHost.h"
#include "tests/WidgetIDs.h"

namespace linewright {

using host::ShownDialog;

inline host::ShownWidget& At(const ShownDialog& dialog, WidgetID id) {
    host::ShownWidget* const widget = dialog.FindShown(id);
    if (!widget) throw std::invalid_argument("no widget " + std::to_string(id));
    return *widget;
}

inline std::string TextAt(const ShownDialog& dialog, WidgetID id) {
    return Latin1(At(dialog, id).GetText());
}

/** A host with the loaded plug-in, whose dialogs are opened by their menu actions. */
class DialogTest : public testing::Test {
  protected:
    explicit DialogTest(const char* name = "qps") : locale(name) {
        std::filesystem::create_directories(file.parent_path());
    }
    ~DialogTest() override {
        host.reset();
        std::filesystem::remove_all(folder);
    }

    /** Starts the host, with a preferences file if one is given. */
    void Start(const LinewrightPrefsRecord& record = kDefaultPreferences) {
        host.reset();
        std::ofstream(file, std::ios::binary)
            .write(reinterpret_cast<const char*>(&record), sizeof record);
        host.emplace(locale, folder);
    }
    LinewrightPrefsRecord SavedPreferences() const {
        LinewrightPrefsRecord record{};
        std::ifstream(file, std::ios::binary).read(reinterpret_cast<char*>(&record), sizeof record);
        return record;
    }

    /** Opens the preferences, uses them and, if they are open then, cancels them. */
    void UsePreferences(const std::function<void(ShownDialog&)>& use) {
        int opened = 0;
        host->recorder.useDialog = [&](ShownDialog& dialog) {
            ++opened;
            EXPECT_EQ(dialog.GetResourceID(), kPrefsDialogResourceID);
            use(dialog);
        };
        EXPECT_TRUE(host::DoAction(kPreferencesActionID));
        host->recorder.useDialog = nullptr;
        EXPECT_EQ(opened, 1);
    }
    ShownDialog& OpenUtility() {
        ShownDialog* opened = nullptr;
        host->recorder.useDialog = [&](ShownDialog& dialog) { opened = &dialog; };
        EXPECT_TRUE(host::DoAction(kUtilityActionID));
        host->recorder.useDialog = nullptr;
        if (!opened) throw std::logic_error("the utility dialog does not open");
        EXPECT_EQ(opened->GetResourceID(), kUtilityDialogResourceID);
        return *opened;
    }

    const char* locale;
    std::filesystem::path folder = MakeTestFolder();
    std::filesystem::path file = folder / "config" / "Corvane" / "Config" / "QVT Linewright.prf";
    std::optional<TestHost> host;
};

}  // namespace linewright
