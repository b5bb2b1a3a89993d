#include "text/Nearest.h"

#include <algorithm>
#include <utility>

namespace linewright {

namespace {

/** How much of a text is looked at. */
constexpr std::size_t kComparedLength = 40;

char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

/** The edit distance of Levenshtein. */
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

std::vector<std::string_view> Nearest(std::string_view written, std::vector<std::string_view> names,
                                      std::size_t count) {
    written = written.substr(0, kComparedLength);
    std::vector<std::pair<std::size_t, std::string_view>> ranked;
    ranked.reserve(names.size());
    for (const std::string_view name : names) ranked.emplace_back(Distance(written, name), name);
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    names.clear();
    for (std::size_t i = 0; i < std::min(count, ranked.size()); ++i)
        names.push_back(ranked[i].second);
    return names;
}

}  // namespace linewright
