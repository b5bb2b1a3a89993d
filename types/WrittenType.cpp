#include "types/WrittenType.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

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
    {"itf", TypeCode::kInterleavedTwoOfFive},
    {"itf14", TypeCode::kInterleavedTwoOfFive, Expectation::kFourteenDigits},
    {"interleaved2of5", TypeCode::kInterleavedTwoOfFive},
    {"intelligentmail", TypeCode::kIntelligentMail},
};

/** How many names are offered, and how much of a text is looked at. */
constexpr std::size_t kOffered = 3;
constexpr std::size_t kComparedLength = 40;

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

/** The edit distance of Levenshtein, blind to case. */
std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const bool same = LowerCase(a[i]) == LowerCase(b[j]);
            const std::size_t replaced = diagonal + (same ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row[b.size()];
}

}  // namespace

WrittenType FindWrittenType(std::string_view written) {
    if (const BarcodeType* const type = FindTypeByPrefix(written)) return {type};
    if (written.size() > kComparedLength) return {};
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
    std::vector<std::pair<std::size_t, std::string_view>> ranked;
    for (const BarcodeType& type : kBarcodeTypes) {
        const std::string_view name = isTypeName ? type.name : type.shortName;
        ranked.emplace_back(Distance(written.substr(0, kComparedLength), name), name);
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string_view> names;
    for (std::size_t i = 0; i < kOffered; ++i) names.push_back(ranked[i].second);
    return names;
}

}  // namespace linewright
