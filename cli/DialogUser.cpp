#include "cli/DialogUser.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <iterator>

#include "CoreResTypes.h"
#include "core/IORTALinewright.h"
#include "host/runtime/HostText.h"
#include "host/runtime/Menus.h"
#include "merge/Failure.h"
#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

using host::WidgetKind;
using nlohmann::ordered_json;

const char* NameOf(host::AlertKind kind) {
    switch (kind) {
        case host::AlertKind::kInformation: return "note";
        case host::AlertKind::kWarning: return "warning";
        case host::AlertKind::kError: return "error";
    }
    return "";
}

const char* NameOf(WidgetKind kind) {
    switch (kind) {
        case WidgetKind::kLabel: return "label";
        case WidgetKind::kEditBox: return "editBox";
        case WidgetKind::kResultBox: return "resultBox";
        case WidgetKind::kDescription: return "description";
        case WidgetKind::kCheckBox: return "checkBox";
        case WidgetKind::kPopUp: return "popUp";
        case WidgetKind::kButton: return "button";
    }
    return "";
}

std::string HexID(WidgetID id) {
    return fmt::format("0x{:X}", id);
}

PMString HostTextFrom(const std::string& utf8) {
    if (const auto invalid = FirstInvalidUtf8(utf8))
        throw Failure(fmt::format("byte {} of the text is not UTF-8", *invalid + 1));
    return host::PlainText(utf8);
}

ordered_json ItemsOf(const host::ShownWidget& widget) {
    ordered_json items = ordered_json::array();
    for (int32 i = 0; i < widget.CountItems(); ++i)
        items.push_back(
            {{"text", host::ToUtf8(widget.GetItem(i))}, {"enabled", widget.IsItemEnabled(i)}});
    return items;
}

ordered_json StateOf(const host::ShownWidget& widget) {
    ordered_json state{{"id", HexID(widget.GetID())}, {"kind", NameOf(widget.GetKind())}};
    switch (widget.GetKind()) {
        case WidgetKind::kCheckBox:
            state["text"] = host::ToUtf8(widget.GetText());
            state["value"] = widget.GetState();
            break;
        case WidgetKind::kPopUp:
            state["value"] = host::ToUtf8(widget.GetText());
            state["index"] = widget.GetSelected();
            state["items"] = ItemsOf(widget);
            break;
        default: state["value"] = host::ToUtf8(widget.GetText());
    }
    state["enabled"] = widget.IsEnabled();
    state["visible"] = widget.IsVisible();
    return state;
}

ordered_json StateOf(const host::ShownDialog& dialog, bool isOpen) {
    ordered_json widgets = ordered_json::array();
    for (int32 i = 0; i < dialog.CountWidgets(); ++i)
        widgets.push_back(StateOf(*dialog.GetWidget(i)));
    return {{"dialog", dialog.GetResourceID()},
            {"title", host::ToUtf8(dialog.GetTitle())},
            {"open", isOpen},
            {"widgets", std::move(widgets)}};
}

bool Choose(host::ShownWidget& widget, const std::string& value) {
    int32 number = -1;
    for (int32 i = 0; i < widget.CountItems(); ++i)
        if (host::ToUtf8(widget.GetItem(i)) == value) return widget.Choose(i);
    const auto parsed = std::from_chars(value.data(), value.data() + value.size(), number);
    const bool isNumber =
        parsed.ec == std::errc() && parsed.ptr == value.data() + value.size() && !value.empty();
    if (!isNumber || number < 0 || number >= widget.CountItems())
        throw Failure(fmt::format("{} has no item \"{}\"", HexID(widget.GetID()), Readable(value)));
    return widget.Choose(number);
}

bool Tick(host::ShownWidget& widget, const std::string& value) {
    if (value == "on" || value == "true" || value == "1" || value == "2") return widget.Tick(true);
    if (value == "off" || value == "false" || value == "0") return widget.Tick(false);
    throw Failure(
        fmt::format("{} is on or off, not \"{}\"", HexID(widget.GetID()), Readable(value)));
}

bool Set(host::ShownWidget& widget, const std::string& value) {
    switch (widget.GetKind()) {
        case WidgetKind::kEditBox: return widget.Type(HostTextFrom(value));
        case WidgetKind::kCheckBox: return Tick(widget, value);
        case WidgetKind::kPopUp: return Choose(widget, value);
        default:
            throw Failure(fmt::format("{} is a {}: nothing can be set", HexID(widget.GetID()),
                                      NameOf(widget.GetKind())));
    }
}

void Open(uint32 resource) {
    if (resource == kPrefsDialogResourceID) {
        host::DoAction(kPreferencesActionID);
    } else if (resource == kUtilityDialogResourceID) {
        host::DoAction(kUtilityActionID);
    } else {
        throw Failure(fmt::format("there is no dialog {}; there are 250 and 251", resource));
    }
}

}  // namespace

void DialogUser::Seen::DialogClosed() {
    last = lastClosed = StateOf(*dialog, false);
    dialog = nullptr;
}

ordered_json DialogUser::Seen::State() const {
    return dialog ? StateOf(*dialog, true) : last;
}

void DialogUser::TakeSteps(StepSource source, StepAnswer answer) {
    nextStep = std::move(source);
    tell = std::move(answer);
    Go([] { return true; });
    if (trouble) std::rethrow_exception(trouble);
}

ordered_json DialogUser::State() const {
    const auto open = std::find_if(dialogs.rbegin(), dialogs.rend(),
                                   [](const Seen& seen) { return seen.dialog != nullptr; });
    return open == dialogs.rend() ? lastClosed : open->State();
}

ordered_json DialogUser::FirstState() const {
    return dialogs.empty() ? lastClosed : dialogs.front().State();
}

void DialogUser::ShowAlert(host::AlertKind kind, const char* text) {
    alerts.push_back({NameOf(kind), text});
}

void DialogUser::ShowDialog(host::ShownDialog& dialog) {
    if (!dialogs.empty()) {
        for (auto seen = std::next(dialogs.begin()); seen != dialogs.end();)
            seen = seen->dialog ? std::next(seen) : dialogs.erase(seen);
    }
    const Seen& seen = dialogs.emplace_back(dialog, lastClosed);
    if (dialog.GetType() != IDialog::kMovableModal) return;
    Go([this, &seen] {
        if (isAnswerDue) Answer(std::nullopt);
        return seen.dialog != nullptr;
    });
}

// The plug-in may stand between this and TakeSteps, so nothing is thrown from here.
void DialogUser::Go(const std::function<bool()>& goOn) {
    try {
        while (!trouble && goOn()) {
            const std::optional<DialogStep> step = nextStep();
            if (!step) return;
            Do(*step);
        }
    } catch (...) {
        trouble = std::current_exception();
    }
}

void DialogUser::Do(const DialogStep& step) {
    isAnswerDue = true;
    std::optional<std::string> failure;
    try {
        Perform(step);
    } catch (const Failure& reason) {
        failure = reason.what();
    }
    if (isAnswerDue && !trouble) Answer(failure);
}

void DialogUser::Answer(const std::optional<std::string>& failure) {
    isAnswerDue = false;
    tell(failure);
}

void DialogUser::Perform(const DialogStep& step) {
    using Kind = DialogStep::Kind;
    const auto press = [](host::ShownWidget& widget) {
        if (widget.GetKind() != WidgetKind::kButton)
            throw Failure(fmt::format("{} is no button", HexID(widget.GetID())));
        return widget.Press();
    };
    WidgetID id = step.id;
    bool isDone = true;
    switch (step.kind) {
        case Kind::kShow: break;
        case Kind::kOpen: Open(step.id); break;
        case Kind::kSet: isDone = Set(Find(id), step.value); break;
        case Kind::kPress: isDone = press(Find(id)); break;
        case Kind::kOK: isDone = press(Find(id = kOKButtonWidgetID)); break;
        case Kind::kCancel: isDone = press(Find(id = kCancelButton_WidgetID)); break;
    }
    if (!isDone) throw Failure(fmt::format("{} is hidden or disabled, or its item is", HexID(id)));
}

host::ShownDialog& DialogUser::Top() {
    const auto open = std::find_if(dialogs.rbegin(), dialogs.rend(),
                                   [](const Seen& seen) { return seen.dialog != nullptr; });
    if (open == dialogs.rend()) throw Failure("no dialog is open");
    return *open->dialog;
}

host::ShownWidget& DialogUser::Find(WidgetID id) {
    const host::ShownDialog& dialog = Top();
    host::ShownWidget* const widget = dialog.FindShown(id);
    if (!widget)
        throw Failure(fmt::format("dialog {} has no widget {}", dialog.GetResourceID(), HexID(id)));
    return *widget;
}

}  // namespace linewright
