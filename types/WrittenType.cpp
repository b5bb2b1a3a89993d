#include "types/WrittenType.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "text/Nearest.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

/** Usual names that are not the short names, in the form of PlainName. */
struct OtherName {
    std::string_view plainName;
    TypeCode code;
    Expectation expectation = Expectation::kNone;
};

constexpr OtherName kOtherNames[]{
    {"gs1128", TypeCode::kCode128, Expectation::kIdentifiers},
    {"isbn", TypeCode::kEan13},
    {"issn", TypeCode::kEan13},
    {"itf", TypeCode::kInterleaved2of5},
    {"itf14", TypeCode::kInterleaved2of5, Expectation::kFourteenDigits},
    {"interleaved2of5", TypeCode::kInterleaved2of5},
    {"intelligentmail", TypeCode::kIntelligentMail},
};

/** How many names are offered. */
constexpr std::size_t kOffered = 3;
/** No name of a type is longer, however it is written. */
constexpr std::size_t kLongestName = 40;

constexpr char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

/** What is left of a name when nobody minds how it is written. */
std::string PlainName(std::string_view name) {
    std::string plain;
    for (const char character : name) {
        if (character != '-' && character != ' ' && character != '_') plain += LowerCase(character);
    }
    return plain;
}

const BarcodeType* TypeOf(TypeCode code) {
    return std::find_if(kBarcodeTypes.begin(), kBarcodeTypes.end(),
                        [code](const BarcodeType& type) { return type.code == code; });
}

}  // namespace

WrittenType FindWrittenType(std::string_view written) {
    if (const BarcodeType* const type = FindTypeByPrefix(written)) return {type};
    if (written.size() > kLongestName) return {};
    const std::string plain = PlainName(written);
    for (const BarcodeType& type : kBarcodeTypes) {
        if (PlainName(type.shortName) == plain) return {&type};
    }
    for (const OtherName& other : kOtherNames) {
        if (other.plainName == plain) return {TypeOf(other.code), other.expectation};
    }
    return {};
}

std::vector<std::string_view> NearestTypeNames(std::string_view written) {
    const bool isTypeName = written.starts_with('_');
    std::vector<std::string_view> names;
    names.reserve(kBarcodeTypes.size());
    for (const BarcodeType& type : kBarcodeTypes) {
        names.push_back(isTypeName ? type.name : type.shortName);
    }
    return Nearest(written, std::move(names), kOffered);
}

}  // namespace linewright
