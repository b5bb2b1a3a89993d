#include "cli/StreamRequest.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "cli/Failure.h"
#include "cli/Hex.h"
#include "text/Readable.h"

namespace linewright {

namespace {

using nlohmann::json;

/** Stops at the first list or object within a line: a request is flat, and what is nested deeply
 *  costs nothing. */
bool RefuseNesting(int depth, json::parse_event_t event, json& /*value*/) {
    if (event == json::parse_event_t::array_start && depth == 0) {
        throw Failure("a list stands where an object is expected");
    }
    const bool isStart =
        event == json::parse_event_t::array_start || event == json::parse_event_t::object_start;
    if (isStart && depth > 0) throw Failure("a member is a list or an object; none may be");
    return true;
}

json ParseObject(std::string_view line) {
    try {
        json object = json::parse(line, RefuseNesting);
        if (!object.is_object()) throw Failure("no object stands here");
        return object;
    } catch (const json::parse_error& error) {
        throw Failure(fmt::format("no valid JSON from byte {} on", error.byte));
    } catch (const json::out_of_range&) {
        throw Failure("a number is too large");
    }
}

/** A member's text; nullptr when it is not there. */
const std::string* TextOf(const json& object, const char* name) {
    const auto member = object.find(name);
    if (member == object.end()) return nullptr;
    if (!member->is_string()) throw Failure(fmt::format("\"{}\" is not a text", name));
    return member->get_ptr<const std::string*>();
}

std::string BytesOf(const std::string& digits, const char* name) {
    auto bytes = FromHex(digits);
    if (!bytes) throw Failure(fmt::format("\"{}\" is not pairs of hexadecimal digits", name));
    return *std::move(bytes);
}

/** The bytes of one of two members, of which exactly one must be there; whether it was the text. */
std::pair<std::string, bool> TextOrHex(const json& object, const char* textName,
                                       const char* hexName) {
    const std::string* const text = TextOf(object, textName);
    const std::string* const hex = TextOf(object, hexName);
    if (text && hex)
        throw Failure(fmt::format("both \"{}\" and \"{}\" are there", textName, hexName));
    if (text) return {*text, true};
    if (hex) return {BytesOf(*hex, hexName), false};
    throw Failure(fmt::format("there is neither \"{}\" nor \"{}\"", textName, hexName));
}

uint8 CheckOf(const json& value) {
    if (value.is_boolean()) return value.get<bool>() ? 1 : 0;
    if (value.is_number_unsigned() && value.get<std::uint64_t>() <= 255) return value.get<uint8>();
    throw Failure("\"check\" is not a whole number from 0 to 255 or a boolean");
}

double RatioOf(const json& value) {
    if (!value.is_number()) throw Failure("\"ratio\" is not a number");
    return value.get<double>();
}

bool Utf8FlagOf(const json& value) {
    if (!value.is_boolean()) throw Failure("\"utf8\" is not a boolean");
    return value.get<bool>();
}

void RefuseUnknownMembers(const json& object) {
    constexpr std::array<std::string_view, 7> kMembers{"type", "typeHex", "data", "hex",
                                                       "utf8", "check",   "ratio"};
    for (const auto& [name, value] : object.items()) {
        if (std::find(kMembers.begin(), kMembers.end(), name) == kMembers.end()) {
            throw Failure(fmt::format("there is no member \"{}\"; the members are {}",
                                      Readable(name), fmt::join(kMembers, ", ")));
        }
    }
}

}  // namespace

EncodeRequest ParseStreamRequest(std::string_view line) {
    const json object = ParseObject(line);
    RefuseUnknownMembers(object);
    EncodeRequest request;
    request.typeName = TextOrHex(object, "type", "typeHex").first;
    if (request.typeName.size() > kMaxPStringLength) {
        throw Failure(fmt::format("the type name has {} bytes; {} is the most",
                                  request.typeName.size(), kMaxPStringLength));
    }
    std::tie(request.data, request.isUtf8) = TextOrHex(object, "data", "hex");
    if (const auto utf8 = object.find("utf8"); utf8 != object.end()) {
        const bool isWanted = Utf8FlagOf(*utf8);
        if (request.isUtf8 && !isWanted)
            throw Failure("\"data\" is always converted; send \"hex\" for data that is not");
        request.isUtf8 = isWanted;
    }
    if (const auto check = object.find("check"); check != object.end()) {
        request.checkCharacter = CheckOf(*check);
    }
    if (const auto ratio = object.find("ratio"); ratio != object.end()) {
        request.ratio = RatioOf(*ratio);
    }
    return request;
}

}  // namespace linewright
