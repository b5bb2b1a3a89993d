#include "cli/DialogCommand.h"

#include <fmt/format.h>

#include "merge/Failure.h"
#include "stream/LineReader.h"
#include "text/Readable.h"

namespace linewright {

namespace {

using nlohmann::ordered_json;

constexpr std::size_t kMaxLineLength = 1U << 20;

/** What was shown since the last time, added to a dialog's state. */
ordered_json WithAlerts(ordered_json state, DialogUser& user) {
    state["alerts"] = ordered_json::array();
    for (const DialogUser::Alert& alert : user.alerts)
        state["alerts"].push_back({{"kind", alert.kind}, {"text", alert.text}});
    state["beeps"] = user.beeps;
    user.alerts.clear();
    user.beeps = 0;
    return state;
}

std::string Dump(const ordered_json& object, int indent) {
    return object.dump(indent, ' ', false, ordered_json::error_handler_t::replace);
}

std::string ValueText(const ordered_json& value) {
    return value.is_string() ? fmt::format("\"{}\"", Readable(value.get<std::string>()))
                             : value.dump();
}

void PrintText(const ordered_json& state, std::ostream& out) {
    out << fmt::format("dialog {}  \"{}\"  {}\n", state.at("dialog").dump(),
                       Readable(state.at("title").get<std::string>()),
                       state.at("open") == true ? "open" : "closed");
    for (const ordered_json& widget : state.at("widgets")) {
        out << fmt::format("{:8}  {:11}  {:8}  {}\n", widget.at("id").get<std::string>(),
                           widget.at("kind").get<std::string>(),
                           widget.at("visible") == false   ? "hidden"
                           : widget.at("enabled") == false ? "disabled"
                                                           : "enabled",
                           ValueText(widget.at("value")));
    }
    for (const ordered_json& alert : state.at("alerts"))
        out << fmt::format("alert     {:11}  {}\n", alert.at("kind").get<std::string>(),
                           ValueText(alert.at("text")));
    if (state.at("beeps") != 0) out << fmt::format("beeps     {}\n", state.at("beeps").dump());
}

ExitStatus RunSteps(DialogUser& user, const DialogOptions& options, Console& console) {
    std::size_t next = 0;
    const auto source = [&]() -> std::optional<DialogStep> {
        if (next > options.steps.size()) return std::nullopt;
        ++next;
        if (next == 1) return DialogStep{DialogStep::Kind::kOpen, options.resource, ""};
        return options.steps[next - 2];
    };
    user.TakeSteps(source, [](const std::optional<std::string>& failure) {
        if (failure) throw Failure(*failure);
    });
    const ordered_json state = WithAlerts(user.FirstState(), user);
    if (options.isJson) {
        console.out << Dump(state, 2) << '\n';
    } else {
        PrintText(state, console.out);
    }
    return kDone;
}

ExitStatus RunScript(DialogUser& user, const DialogOptions& options, Console& console) {
    LineReader reader(console.in, console.out);
    ExitStatus exitStatus = kDone;
    std::size_t number = 0;
    const auto answer = [&](const std::optional<std::string>& failure) {
        if (number == 0) {  // the dialog of the command line
            if (failure) throw Failure(*failure);
            return;
        }
        ordered_json state;
        if (failure) {
            state["error"] = fmt::format("line {}: {}", number, *failure);
            exitStatus = kTrouble;
        } else {
            state = user.State();
        }
        console.out << Dump(WithAlerts(std::move(state), user), -1) << '\n';
    };
    bool isOpened = false;
    const auto source = [&]() -> std::optional<DialogStep> {
        if (!isOpened) {
            isOpened = true;
            return DialogStep{DialogStep::Kind::kOpen, options.resource, ""};
        }
        std::string line;
        for (;;) {
            const LineReader::Result result = reader.Next(line, kMaxLineLength);
            if (result == LineReader::Result::kEnd) return std::nullopt;
            ++number;
            try {
                if (result == LineReader::Result::kTooLong)
                    throw Failure(fmt::format("longer than {} bytes", kMaxLineLength));
                return ParseScriptStep(line);
            } catch (const Failure& failure) {
                answer(failure.what());
            }
        }
    };
    user.TakeSteps(source, answer);
    return exitStatus;
}

}  // namespace

ExitStatus RunDialog(DialogUser& user, const DialogOptions& options, Console& console) {
    return options.isScript ? RunScript(user, options, console) : RunSteps(user, options, console);
}

}  // namespace linewright
