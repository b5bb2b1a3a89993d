#include "cli/DialogStep.h"

#include <fmt/format.h>

#include <charconv>
#include <nlohmann/json.hpp>

#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

namespace {

using nlohmann::json;

uint32 RequireID(std::string_view text) {
    const auto id = ParseDialogID(text);
    if (!id) throw Failure(fmt::format("\"{}\" is no number of a widget", Readable(text)));
    return *id;
}

json ParseLine(std::string_view line) {
    // A step is flat: what is nested deeply costs nothing.
    const auto refuseNesting = [](int depth, json::parse_event_t event, json& /*value*/) {
        const bool isStart =
            event == json::parse_event_t::array_start || event == json::parse_event_t::object_start;
        if (isStart && depth > 0) throw Failure("a member is a list or an object; none may be");
        return true;
    };
    try {
        return json::parse(line, refuseNesting);
    } catch (const json::parse_error& error) {
        throw Failure(fmt::format("no valid JSON from byte {} on", error.byte));
    } catch (const json::out_of_range&) {
        throw Failure("a number is too large");
    }
}

uint32 IDOf(const json& value) {
    if (value.is_string()) return RequireID(value.get_ref<const std::string&>());
    if (value.is_number_unsigned() && value <= 0xFFFFFFFFU) return value.get<uint32>();
    throw Failure("an id is a number, or a text such as \"0x12211D\"");
}

std::string ValueOf(const json& value) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_boolean()) return value.get<bool>() ? "on" : "off";
    if (value.is_number_integer()) return value.dump();
    throw Failure("\"value\" is not a text, a whole number or a boolean");
}

DialogStep SetStepOf(const json& object) {
    if (object.size() != 2 || !object.contains("value"))
        throw Failure("\"set\" goes with \"value\" and nothing else");
    return {DialogStep::Kind::kSet, IDOf(object.at("set")), ValueOf(object.at("value"))};
}

DialogStep FlagStepOf(const std::string& name, const json& value) {
    using Kind = DialogStep::Kind;
    for (const auto& [flag, kind] :
         {std::pair{"ok", Kind::kOK}, {"cancel", Kind::kCancel}, {"show", Kind::kShow}}) {
        if (name != flag) continue;
        if (value != true) throw Failure(fmt::format("\"{}\" is not true", name));
        return {kind, 0, ""};
    }
    throw Failure(
        fmt::format("there is no step \"{}\"; the steps are set, press, open, ok, cancel, show",
                    Readable(name)));
}

}  // namespace

std::optional<uint32> ParseDialogID(std::string_view text) {
    const bool isHex = text.starts_with("0x") || text.starts_with("0X");
    if (isHex) text.remove_prefix(2);
    uint32 id = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, id, isHex ? 16 : 10);
    if (parsed.ec != std::errc() || parsed.ptr != end) return std::nullopt;
    return id;
}

DialogStep ParseSetStep(const std::string& assignment) {
    const std::size_t sign = assignment.find('=');
    if (sign == std::string::npos)
        throw Failure(fmt::format("--set {}: there is no =", Readable(assignment)));
    return {DialogStep::Kind::kSet, RequireID(std::string_view(assignment).substr(0, sign)),
            assignment.substr(sign + 1)};
}

DialogStep ParsePressStep(const std::string& id) {
    return {DialogStep::Kind::kPress, RequireID(id), ""};
}

DialogStep ParseScriptStep(std::string_view line) {
    const json object = ParseLine(line);
    if (!object.is_object() || object.empty()) throw Failure("no object with a step stands here");
    if (object.contains("set")) return SetStepOf(object);
    if (object.size() != 1) throw Failure("a line has one step");
    const std::string& name = object.begin().key();
    const json& value = object.begin().value();
    if (name == "press") return {DialogStep::Kind::kPress, IDOf(value), ""};
    if (name == "open") return {DialogStep::Kind::kOpen, IDOf(value), ""};
    return FlagStepOf(name, value);
}

}  // namespace linewright
