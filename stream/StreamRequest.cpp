#include "stream/StreamRequest.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "merge/Failure.h"
#include "text/Hex.h"
#include "text/Readable.h"

namespace linewright {

namespace {

using nlohmann::json;

/** Takes the members of a flat object. The first mistake is kept and reading goes on, for the sake
 *  of an `id` behind it; what is nested, however deeply, costs nothing. */
class RequestReader : public nlohmann::json_sax<json> {
  public:
    json members = json::object();
    /** The member `id` as JSON text, with a number's digits as they were written. */
    std::string id;
    std::string mistake;

    bool null() override { return Take(nullptr); }
    bool boolean(bool value) override { return Take(value); }
    bool number_integer(json::number_integer_t value) override { return Take(value); }
    bool number_unsigned(json::number_unsigned_t value) override { return Take(value); }
    bool number_float(json::number_float_t value, const std::string& digits) override {
        return Take(value, digits);
    }
    bool string(std::string& value) override { return Take(std::move(value)); }
    bool binary(json::binary_t& /*value*/) override { return false; }
    bool start_object(std::size_t /*size*/) override { return Enter(); }
    bool end_object() override { return Leave(); }
    bool start_array(std::size_t /*size*/) override {
        if (depth == 0) Refuse("a list stands where an object is expected");
        return Enter();
    }
    bool end_array() override { return Leave(); }
    bool key(std::string& value) override {
        if (depth == 1) name = value;
        return true;
    }
    bool parse_error(std::size_t position, const std::string& /*token*/,
                     const json::exception& error) override {
        const bool isTooLarge = dynamic_cast<const json::out_of_range*>(&error) != nullptr;
        Refuse(isTooLarge ? "a number is too large"
                          : fmt::format("no valid JSON from byte {} on", position));
        return false;
    }

  private:
    void Refuse(std::string sentence) {
        if (mistake.empty()) mistake = std::move(sentence);
    }
    bool Enter() {
        if (depth > 0) Refuse("a member is a list or an object; none may be");
        ++depth;
        return true;
    }
    bool Leave() {
        --depth;
        return true;
    }
    bool Take(json value, const std::string& digits = "") {
        if (depth == 0) Refuse("no object stands here");
        if (depth != 1) return true;
        const auto [member, isFirst] = members.emplace(name, std::move(value));
        if (!isFirst) Refuse(fmt::format("the member \"{}\" stands twice", Readable(name)));
        if (name != "id") return true;
        id = !isFirst ? "" : digits.empty() ? member->dump() : digits;
        return true;
    }

    std::size_t depth = 0;
    std::string name;
};

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

/** A boolean member; false when it is not there. */
bool FlagOf(const json& object, const char* name) {
    const auto member = object.find(name);
    if (member == object.end()) return false;
    if (!member->is_boolean()) throw Failure(fmt::format("\"{}\" is not a boolean", name));
    return member->get<bool>();
}

void RefuseUnknownMembers(const json& object) {
    constexpr std::array<std::string_view, 10> kMembers{
        "type", "typeHex", "data", "hex", "utf8", "check", "ratio", "gtin", "warnings", "id"};
    for (const auto& [name, value] : object.items()) {
        if (std::find(kMembers.begin(), kMembers.end(), name) == kMembers.end()) {
            throw Failure(fmt::format("there is no member \"{}\"; the members are {}",
                                      Readable(name), fmt::join(kMembers, ", ")));
        }
    }
}

}  // namespace

StreamRequest ParseStreamRequest(std::string_view line, std::string& id) {
    RequestReader reader;
    json::sax_parse(line, &reader);
    id = reader.id;
    if (!reader.mistake.empty()) throw Failure(reader.mistake);
    const json& object = reader.members;
    RefuseUnknownMembers(object);
    StreamRequest request;
    EncodeRequest& encode = request.encode;
    encode.typeName = TextOrHex(object, "type", "typeHex").first;
    if (encode.typeName.size() > kMaxPStringLength) {
        throw Failure(fmt::format("the type name has {} bytes; {} is the most",
                                  encode.typeName.size(), kMaxPStringLength));
    }
    std::tie(encode.data, encode.isUtf8) = TextOrHex(object, "data", "hex");
    if (object.contains("utf8")) {
        const bool isWanted = FlagOf(object, "utf8");
        if (encode.isUtf8 && !isWanted)
            throw Failure("\"data\" is always converted; send \"hex\" for data that is not");
        encode.isUtf8 = isWanted;
    }
    if (const auto check = object.find("check"); check != object.end()) {
        encode.checkCharacter = CheckOf(*check);
    }
    if (const auto ratio = object.find("ratio"); ratio != object.end()) {
        encode.ratio = RatioOf(*ratio);
    }
    request.isArticleNumber = FlagOf(object, "gtin");
    request.areWarningsWanted = FlagOf(object, "warnings");
    return request;
}

}  // namespace linewright
