#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/runtime/FrontEnd.h"

namespace host {

/** Keeps what would be shown, for tests to look at. */
class RecordingFrontEnd final : public FrontEnd {
  public:
    struct Alert {
        AlertKind kind;
        std::string text;
        bool operator==(const Alert&) const = default;
    };

    void ShowAlert(AlertKind kind, const char* text) override { alerts.push_back({kind, text}); }
    void Beep() override { ++beeps; }
    void ShowDialog(ShownDialog& dialog) override {
        if (opened) opened(dialog);
    }

    std::vector<Alert> alerts;
    int beeps = 0;
    /** What is done to a dialog that opens. */
    std::function<void(ShownDialog&)> opened;
};

}  // namespace host
