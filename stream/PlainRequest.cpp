#include "stream/PlainRequest.h"

#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <variant>

#include "text/Hex.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

constexpr std::array<std::string_view, 10> kNames{"type",  "typeHex", "data", "hex",      "utf8",
                                                  "check", "ratio",   "gtin", "warnings", "id"};
enum Member : std::size_t {
    kType,
    kTypeHex,
    kData,
    kHex,
    kUtf8,
    kCheck,
    kRatio,
    kGtin,
    kWarnings,
    kId
};

/** A member that is there; monostate for one that is not. */
using Value = std::variant<std::monostate, std::string_view, bool, std::uint64_t, std::int64_t,
                           double, std::nullptr_t>;

/** Takes the members of an object; every event that it has no place for ends the reading. */
class MemberTaker {
  public:
    const Value& At(Member member) const { return values[member]; }
    template <class Kind>
    const Kind* Get(Member member) const {
        return std::get_if<Kind>(&values[member]);
    }
    bool Has(Member member) const { return values[member].index() != 0; }
    /** Whether a member is not there, or is of this kind. */
    template <class Kind>
    bool MayHave(Member member) const {
        return !Has(member) || Get<Kind>(member);
    }

    // The reader's events.
    bool Null() { return Take(nullptr); }
    bool Bool(bool value) { return Take(value); }
    bool Int(int value) { return Take(std::int64_t{value}); }
    bool Uint(unsigned value) { return Take(std::uint64_t{value}); }
    bool Int64(std::int64_t value) { return Take(value); }
    bool Uint64(std::uint64_t value) { return Take(value); }
    bool Double(double value) { return Take(value); }
    bool RawNumber(const char* /*digits*/, rapidjson::SizeType /*length*/, bool /*copy*/) {
        return false;
    }
    bool String(const char* text, rapidjson::SizeType length, bool /*copy*/) {
        return Take(std::string_view(text, length));
    }
    bool StartObject() { return !std::exchange(isInObject, true); }
    bool Key(const char* text, rapidjson::SizeType length, bool /*copy*/) {
        const auto name = std::find(kNames.begin(), kNames.end(), std::string_view(text, length));
        current = static_cast<std::size_t>(name - kNames.begin());
        return name != kNames.end() && values[current].index() == 0;
    }
    bool EndObject(rapidjson::SizeType /*count*/) { return true; }
    bool StartArray() { return false; }
    bool EndArray(rapidjson::SizeType /*count*/) { return false; }

  private:
    bool Take(Value value) {
        if (!isInObject) return false;
        values[current] = value;
        return true;
    }

    std::array<Value, kNames.size()> values{};
    std::size_t current = 0;
    bool isInObject = false;
};

/** Whether a line is UTF-8 without escapes and NUL: then reading in place changes nothing but
 * quotes, which become NUL. What is broken off would lead the reader's own look at UTF-8 beyond the
 * end. */
bool IsPlain(std::string_view line) {
    unsigned bits = 0;
    bool isPlain = true;
    for (const char character : line) {
        bits |= static_cast<unsigned char>(character);
        isPlain &= character != '\\' && character != '\0';
    }
    return isPlain && (bits < 128 || !FirstInvalidUtf8(line));
}

/** The text of one of two members, of which the second is hexadecimal. */
std::optional<std::string> TextOrHex(const MemberTaker& members, Member text, Member hex) {
    if (members.Has(text) == members.Has(hex)) return std::nullopt;
    if (const auto* const value = members.Get<std::string_view>(text)) return std::string(*value);
    if (const auto* const value = members.Get<std::string_view>(hex)) return FromHex(*value);
    return std::nullopt;
}

bool IsFlag(const MemberTaker& members, Member member) {
    const bool* const flag = members.Get<bool>(member);
    return flag && *flag;
}

bool HasUsualOptions(const MemberTaker& members) {
    const auto* const check = members.Get<std::uint64_t>(kCheck);
    const bool isCheck = members.MayHave<bool>(kCheck) || (check && *check <= 255);
    const bool isRatio = members.MayHave<double>(kRatio) || members.Get<std::uint64_t>(kRatio);
    return isCheck && isRatio && members.MayHave<bool>(kUtf8) && members.MayHave<bool>(kGtin) &&
           members.MayHave<bool>(kWarnings) && !members.Get<double>(kId);
}

/** An id as JSON text. */
std::string TextOfId(const MemberTaker& members) {
    if (const auto* const text = members.Get<std::string_view>(kId)) {
        std::string quoted(1, '"');
        return quoted.append(*text).append(1, '"');
    }
    if (const bool* const flag = members.Get<bool>(kId)) return *flag ? "true" : "false";
    if (const auto* const number = members.Get<std::uint64_t>(kId)) return std::to_string(*number);
    if (const auto* const number = members.Get<std::int64_t>(kId)) return std::to_string(*number);
    return members.Has(kId) ? "null" : "";
}

std::optional<StreamRequest> RequestOf(const MemberTaker& members) {
    if (!HasUsualOptions(members)) return std::nullopt;
    auto type = TextOrHex(members, kType, kTypeHex);
    auto data = TextOrHex(members, kData, kHex);
    const bool isText = members.Has(kData);
    if (!type || type->size() > kMaxPStringLength || !data) return std::nullopt;
    if (isText && members.Has(kUtf8) && !IsFlag(members, kUtf8)) return std::nullopt;
    StreamRequest request;
    request.encode.typeName = *std::move(type);
    request.encode.data = *std::move(data);
    request.encode.isUtf8 = isText || IsFlag(members, kUtf8);
    request.encode.checkCharacter = IsFlag(members, kCheck) ? 1 : 0;
    if (const auto* const check = members.Get<std::uint64_t>(kCheck)) {
        request.encode.checkCharacter = static_cast<uint8>(*check);
    }
    if (const auto* const ratio = members.Get<double>(kRatio)) request.encode.ratio = *ratio;
    if (const auto* const ratio = members.Get<std::uint64_t>(kRatio)) {
        request.encode.ratio = static_cast<double>(*ratio);
    }
    request.isArticleNumber = IsFlag(members, kGtin);
    request.areWarningsWanted = IsFlag(members, kWarnings);
    return request;
}

}  // namespace

std::optional<StreamRequest> ReadPlainRequest(std::string& line, std::string& id) {
    if (!IsPlain(line)) return std::nullopt;
    rapidjson::InsituStringStream stream(line.data());
    rapidjson::Reader reader;
    MemberTaker members;
    constexpr unsigned kHow = rapidjson::kParseInsituFlag | rapidjson::kParseFullPrecisionFlag;
    std::optional<StreamRequest> request;
    if (!reader.Parse<kHow>(stream, members).IsError()) request = RequestOf(members);
    if (request) {
        id = TextOfId(members);
    } else {
        std::replace(line.begin(), line.end(), '\0', '"');
    }
    return request;
}

}  // namespace linewright
