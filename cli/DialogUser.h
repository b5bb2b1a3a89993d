#pragma once

#include <exception>
#include <functional>
#include <list>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "cli/DialogStep.h"
#include "host/runtime/FrontEnd.h"
#include "host/runtime/ShownDialog.h"

namespace linewright {

/** A user without a screen: takes steps one by one, does them to the dialog that opened last, and
 *  keeps what is shown. */
class DialogUser final : public host::FrontEnd {
  public:
    struct Alert {
        std::string kind;
        std::string text;
    };

    /** Supplies the next step; nothing when there are no more. */
    using StepSource = std::function<std::optional<DialogStep>()>;
    /** Hears that a step was done, or why it could not be. A step that opens a modal dialog counts
     *  as done when the dialog is there. */
    using StepAnswer = std::function<void(const std::optional<std::string>& failure)>;

    DialogUser() = default;
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;
    virtual ~DialogUser() = default;

    /** Takes steps until there are none. What source or answer throw ends that, and is thrown on.
     */
    void TakeSteps(StepSource source, StepAnswer answer);

    /** The dialog that the user sees, or saw last: id, title, whether it is open, widgets. */
    nlohmann::ordered_json State() const;
    /** The same of the dialog that opened first. */
    nlohmann::ordered_json FirstState() const;

    void ShowAlert(host::AlertKind kind, const char* text) override;
    void Beep() override { ++beeps; }
    void ShowDialog(host::ShownDialog& dialog) override;

    /** What was shown and heard; whoever reads it may clear it. */
    std::vector<Alert> alerts;
    int beeps = 0;

  private:
    /** A dialog, and what it looked like when it was closed. */
    struct Seen final : host::DialogListener {
        Seen(host::ShownDialog& shown, nlohmann::ordered_json& lastClosedState)
            : dialog(&shown), lastClosed(lastClosedState) {
            shown.SetListener(this);
        }
        void WidgetChanged(host::ShownWidget& /*widget*/) override {}
        void DialogClosed() override;
        nlohmann::ordered_json State() const;

        host::ShownDialog* dialog;  // nullptr when it is closed
        nlohmann::ordered_json last;
        nlohmann::ordered_json& lastClosed;
    };

    /** Takes steps as long as `goOn`. */
    void Go(const std::function<bool()>& goOn);
    void Do(const DialogStep& step);
    void Perform(const DialogStep& step);
    void Answer(const std::optional<std::string>& failure);
    /** The open dialog that is on top; throws Failure when there is none. */
    host::ShownDialog& Top();
    host::ShownWidget& Find(WidgetID id);

    StepSource nextStep;
    StepAnswer tell;
    bool isAnswerDue = false;
    std::exception_ptr trouble;
    nlohmann::ordered_json lastClosed{{"dialog", nullptr}};
    std::list<Seen> dialogs;  // the first, and those that are open, in the order of their opening
};

}  // namespace linewright
