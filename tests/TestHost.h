#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/runtime/Host.h"
#include "host/runtime/ShownDialog.h"

namespace linewright {

/** A host with the plug-in loaded, for the length of a test: folders of its own, alerts recorded,
 *  and a failure for whatever is still alive at the end. The registry of the rooms that are linked
 *  into the test is built too. */
class TestHost {
  public:
    /** A fresh folder that is removed again at the end, or `folder`, which stays. */
    explicit TestHost(const char* locale = "qps", std::filesystem::path folder = {});
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;
    ~TestHost();

    std::filesystem::path RoamingFolder() const { return folder / "config"; }
    std::filesystem::path AppFolder() const { return folder / "app"; }

    struct Recorder : host::FrontEnd {
        struct Alert {
            host::AlertKind kind;
            std::string text;
        };
        std::vector<Alert> alerts;
        int beeps = 0;

        void ShowAlert(host::AlertKind kind, const char* text) override {
            alerts.push_back({kind, text});
        }
        void Beep() override { ++beeps; }

        /** What a user does to a dialog that opens; a modal one closes after it. */
        std::function<void(host::ShownDialog&)> useDialog;
        void ShowDialog(host::ShownDialog& dialog) override {
            if (useDialog) useDialog(dialog);
        }
    } recorder;

  private:
    bool ownsFolder;
    std::filesystem::path folder;
    host::Host runningHost;
};

/** A new folder of its own below the system's folder for temporary files. */
std::filesystem::path MakeTestFolder();

}  // namespace linewright
