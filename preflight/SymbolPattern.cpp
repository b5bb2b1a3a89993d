#include "preflight/SymbolPattern.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <span>

#include "standards/CodabarPatterns.h"
#include "standards/Code128Patterns.h"
#include "standards/Code39Patterns.h"
#include "standards/Interleaved2of5Patterns.h"

namespace linewright {

namespace {

using Widths = std::span<const double>;
using Nominal = std::optional<std::vector<int>>;

double Sum(Widths widths) {
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/** How far a character's elements are from a row of a table, by distances between like edges, in
 *  modules: what makes all bars wider leaves these as they are. */
double Distance(Widths widths, double module, std::string_view row) {
    double distance = 0;
    for (std::size_t place = 0; place + 1 < row.size(); ++place) {
        const double like = (widths[place] + widths[place + 1]) / module;
        distance =
            std::max(distance, std::fabs(like - (row[place] - '0') - (row[place + 1] - '0')));
    }
    // Rows that share these distances differ in their bars.
    const double bar = widths[0] / module - (row[0] - '0');
    return distance + std::fabs(bar) / 4;
}

void Append(std::vector<int>& nominal, std::string_view row) {
    for (const char modules : row) nominal.push_back(modules - '0');
}

/** Farther than half a module is another character. */
constexpr double kFarthest = 0.7;

std::optional<std::size_t> Code128Value(Widths widths) {
    const double module = Sum(widths) / 11;
    std::size_t best = 0;
    double least = kFarthest;
    for (std::size_t value = 0; value < kCode128Widths.size(); ++value) {
        const double distance = Distance(widths, module, kCode128Widths[value]);
        if (distance < least) {
            least = distance;
            best = value;
        }
    }
    if (least >= kFarthest) return std::nullopt;
    return best;
}

Nominal MatchCode128(Widths widths) {
    constexpr std::size_t kElements = 6;
    if (widths.size() < 3 * kElements + 1) return std::nullopt;
    const auto start = Code128Value(widths.first(kElements));
    if (!start || *start < kCode128StartA) return std::nullopt;
    std::vector<int> nominal;
    Append(nominal, kCode128Widths[*start]);
    std::size_t sum = *start;
    std::size_t last = 0;
    for (std::size_t at = kElements, place = 1; at + kElements < widths.size(); ++place) {
        const Widths stop = widths.subspan(at, kElements + 1);
        if (place > 2 && Distance(stop, Sum(stop) / 13, kCode128StopWidths) < kFarthest) {
            // The last character was the check character, which the sum has with its place.
            if ((sum - (place - 1) * last) % kCode128Modulus != last) return std::nullopt;
            Append(nominal, kCode128StopWidths);
            return nominal;
        }
        const auto value = Code128Value(stop.first(kElements));
        if (!value || *value >= kCode128StartA) return std::nullopt;
        sum += place * *value;
        last = *value;
        Append(nominal, kCode128Widths[*value]);
        at += kElements;
    }
    return std::nullopt;
}

/** A character's elements as "n" and "w", wide ones beyond the middle of the widest and the
 *  narrowest of its own kind or of all. */
template <typename Table>
std::optional<std::size_t> TwoWidthValue(Widths widths, const Table& table) {
    const auto [least, most] = std::minmax_element(widths.begin(), widths.end());
    if (!(*most < 5 * *least) || *most < 1.3 * *least) return std::nullopt;
    const double middle = (*least + *most) / 2;
    std::string pattern;
    for (const double width : widths) pattern += width > middle ? 'w' : 'n';
    const auto row = std::find(table.begin(), table.end(), pattern);
    if (row == table.end()) return std::nullopt;
    return static_cast<std::size_t>(row - table.begin());
}

void AppendTwoWidths(std::vector<int>& nominal, std::string_view row) {
    for (const char width : row) nominal.push_back(width == 'w' ? 2 : 1);
}

/** Characters with narrow gaps between them, from a start to a stop character. */
template <typename Table>
Nominal MatchDiscrete(Widths widths, const Table& table, std::size_t firstStart) {
    const std::size_t size = table[0].size();
    std::vector<int> nominal;
    double module = 0;
    for (std::size_t at = 0; at + size <= widths.size(); at += size + 1) {
        const Widths character = widths.subspan(at, size);
        const auto value = TwoWidthValue(character, table);
        if (!value || (at == 0 && *value < firstStart)) return std::nullopt;
        const double total = Sum(character);
        // Characters of one symbol are about as wide as each other.
        if (at > 0 && (total > 1.5 * module || total < module / 1.5)) return std::nullopt;
        module = total;
        AppendTwoWidths(nominal, table[*value]);
        if (at > 0 && *value >= firstStart) return nominal;
        nominal.push_back(0);
        if (at + size < widths.size() && widths[at + size] > total) return std::nullopt;
    }
    return std::nullopt;
}

/** Whether two of five are wider than the others; puts 2 for them and 1 for the others. */
bool TwoOfFive(Widths widths, std::size_t first, std::span<int> nominal) {
    std::array<double, 5> sorted{};
    for (std::size_t place = 0; place < 5; ++place) sorted[place] = widths[first + 2 * place];
    std::array<double, 5> own = sorted;
    std::sort(sorted.begin(), sorted.end());
    if (sorted[3] < 1.25 * sorted[2]) return false;
    const double middle = (sorted[2] + sorted[3]) / 2;
    for (std::size_t place = 0; place < 5; ++place) {
        nominal[first + 2 * place] = own[place] > middle ? 2 : 1;
    }
    return true;
}

/** The digit of five elements; none where they are of none. */
std::optional<char> DigitOf(std::span<const int> nominal, std::size_t first) {
    std::string pattern;
    for (std::size_t place = 0; place < 5; ++place) {
        pattern += nominal[first + 2 * place] == 2 ? 'w' : 'n';
    }
    const auto row =
        std::find(kInterleaved2of5Patterns.begin(), kInterleaved2of5Patterns.end(), pattern);
    if (row == kInterleaved2of5Patterns.end()) return std::nullopt;
    return static_cast<char>('0' + (row - kInterleaved2of5Patterns.begin()));
}

Nominal MatchInterleaved2of5(Widths widths, std::size_t length, std::string& digits) {
    constexpr std::size_t kPair = 10;
    const std::size_t count = 4 + kPair * (length / 2) + 3;
    if (length < 2 || length % 2 != 0 || widths.size() < count) return std::nullopt;
    std::vector<int> nominal(count, 1);
    digits.clear();
    const std::span<int> all(nominal);
    const double pair = Sum(widths.subspan(4, kPair));
    for (std::size_t at = 4; at + 3 < count; at += kPair) {
        const Widths elements = widths.subspan(at, kPair);
        const double total = Sum(elements);
        if (total > 1.3 * pair || total < pair / 1.3 ||
            !TwoOfFive(elements, 0, all.subspan(at, kPair)) ||
            !TwoOfFive(elements, 1, all.subspan(at, kPair))) {
            return std::nullopt;
        }
        const auto first = DigitOf(all, at);
        const auto second = DigitOf(all, at + 1);
        if (!first || !second) return std::nullopt;
        digits += *first;
        digits += *second;
    }
    nominal[count - 3] = 2;
    // Of 14 to 18 narrow widths in a pair a start element is one.
    for (const std::size_t place :
         {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{3}, count - 2, count - 1}) {
        if (widths[place] > pair / 7) return std::nullopt;
    }
    if (widths[count - 3] < pair / 11) return std::nullopt;
    return nominal;
}

Nominal MatchEanUpc(Widths widths, EanUpcForm form) {
    struct Layout {
        std::size_t elements;
        int modules;
        std::size_t leftDigits;
        std::size_t middle;
        std::size_t rightDigits;
        std::size_t rightGuard;
    };
    const Layout layout = form == EanUpcForm::kEight  ? Layout{43, 67, 4, 5, 4, 3}
                          : form == EanUpcForm::kUpcE ? Layout{33, 51, 6, 0, 0, 6}
                                                      : Layout{59, 95, 6, 5, 6, 3};
    if (widths.size() < layout.elements) return std::nullopt;
    const double module = Sum(widths.first(layout.elements)) / layout.modules;
    std::vector<int> nominal;
    // Guards are bars and spaces of one module: what bars have too much, spaces have too little.
    double gain = 0;
    const auto takeGuard = [&](std::size_t count) {
        for (std::size_t left = count; left > 0; --left) {
            if (std::fabs(widths[nominal.size()] / module - 1) > 0.65) return false;
            nominal.push_back(1);
        }
        return true;
    };
    const auto takeDigits = [&](std::size_t count) {
        for (std::size_t digit = 0; digit < count; ++digit) {
            const Widths character = widths.subspan(nominal.size(), 4);
            if (std::fabs(Sum(character) / module - 7) > 0.7) return false;
            int total = 0;
            for (const double width : character) {
                const bool isBar = nominal.size() % 2 == 0;
                const double modules = (width + (isBar ? -gain : gain)) / module;
                nominal.push_back(std::clamp(static_cast<int>(std::lround(modules)), 1, 4));
                total += nominal.back();
            }
            if (total != 7) return false;
        }
        return true;
    };
    if (!takeGuard(3)) return std::nullopt;
    gain = ((widths[0] + widths[2]) / 2 - widths[1]) / 2;
    if (!takeDigits(layout.leftDigits) || !takeGuard(layout.middle) ||
        !takeDigits(layout.rightDigits) || !takeGuard(layout.rightGuard)) {
        return std::nullopt;
    }
    // The first digit has an odd number of dark modules when it is read from the left.
    const bool isUpright = (nominal[4] + nominal[6]) % 2 != 0;
    if (form != EanUpcForm::kUpcE && !isUpright) return std::nullopt;
    return nominal;
}

/** MSI: a wide bar in front, four pairs a digit, each a wide and a narrow element, and behind them
 *  a narrow bar, a wide space and a narrow bar. */
Nominal MatchMsi(Widths widths, std::string& digits) {
    if (widths.size() < 2 + 8 + 3) return std::nullopt;
    const double pair = widths[0] + widths[1];
    std::vector<int> nominal;
    std::string bits;
    for (std::size_t at = 0; at + 2 < widths.size(); at += 2) {
        const double total = widths[at] + widths[at + 1];
        const double wide = std::max(widths[at], widths[at + 1]);
        const double narrow = std::min(widths[at], widths[at + 1]);
        if (std::fabs(total / pair - 1) > 0.17 || wide < 1.35 * narrow || wide > 4 * narrow) break;
        const bool isOne = widths[at] > widths[at + 1];
        bits += isOne ? '1' : '0';
        nominal.insert(nominal.end(), {isOne ? 2 : 1, isOne ? 1 : 2});
    }
    // What stands in the quiet zone can look like one more pair.
    while (bits.size() > 6 && (bits.size() % 4 != 2 || bits.back() != '0')) {
        bits.pop_back();
        nominal.resize(nominal.size() - 2);
    }
    if (bits.size() < 6 || bits.size() % 4 != 2 || bits.front() != '1' || bits.back() != '0') {
        return std::nullopt;
    }
    const double last = widths[nominal.size()];
    if (std::fabs(last / pair - 1.0 / 3) > 0.17) return std::nullopt;
    nominal.push_back(1);
    digits.clear();
    for (std::size_t at = 1; at + 1 < bits.size(); at += 4) {
        const unsigned long digit = std::stoul(bits.substr(at, 4), nullptr, 2);
        if (digit > 9) return std::nullopt;
        digits += static_cast<char>('0' + digit);
    }
    return nominal;
}

/** Bars of one width at one distance. */
Nominal MatchPostal(Widths widths, std::size_t bars) {
    const std::size_t count = 2 * bars - 1;
    if (bars < 2 || widths.size() < count) return std::nullopt;
    for (std::size_t place = 2; place < count; ++place) {
        if (std::fabs(widths[place] / widths[place % 2] - 1) > 0.35) return std::nullopt;
    }
    return std::vector<int>(count, 1);
}

std::optional<SymbolPattern> MatchAt(const PatternQuery& query, Widths widths) {
    SymbolPattern pattern;
    Nominal nominal;
    pattern.hasTwoWidths = true;
    switch (query.symbology) {
        case Symbology::kCode128:
            nominal = MatchCode128(widths);
            pattern.hasTwoWidths = false;
            break;
        case Symbology::kEanUpc:
            nominal = MatchEanUpc(widths, query.form);
            pattern.hasTwoWidths = false;
            break;
        case Symbology::kCode39:
            nominal = MatchDiscrete(widths, kCode39Patterns, kCode39StartStop);
            break;
        case Symbology::kCodabar:
            nominal = MatchDiscrete(widths, kCodabarPatterns, kCodabarDataCharacters.size());
            break;
        case Symbology::kInterleaved2of5:
            nominal = MatchInterleaved2of5(widths, query.length, pattern.digits);
            break;
        case Symbology::kIntelligentMail:
        case Symbology::kPostnet:
            nominal = MatchPostal(widths, query.length);
            pattern.hasHeights = true;
            break;
        case Symbology::kMsi: nominal = MatchMsi(widths, pattern.digits); break;
        default: break;
    }
    if (!nominal || (!query.digits.empty() && query.digits != pattern.digits)) {
        return std::nullopt;
    }
    pattern.nominal = std::move(*nominal);
    return pattern;
}

}  // namespace

std::optional<SymbolPattern> FindPattern(const PatternQuery& query,
                                         const std::vector<double>& widths, std::size_t from,
                                         std::size_t to) {
    std::optional<SymbolPattern> best;
    std::size_t most = 0;
    const std::vector<double> reversed(widths.rbegin(), widths.rend());
    for (const bool isReversed : {false, true}) {
        const Widths all = isReversed ? reversed : widths;
        for (std::size_t start = 1; start < all.size(); start += 2) {
            const std::size_t first = isReversed ? widths.size() - 1 - start : start;
            if (isReversed ? first + 1 < from : first > to) continue;
            auto pattern = MatchAt(query, all.subspan(start));
            if (!pattern) continue;
            const std::size_t count = pattern->nominal.size();
            const std::size_t low = isReversed ? first + 1 - count : first;
            const std::size_t begin = std::max(low, from);
            const std::size_t end = std::min(low + count, to + 1);
            if (end <= begin || end - begin <= most) continue;
            most = end - begin;
            pattern->first = first;
            pattern->isReversed = isReversed;
            best = std::move(pattern);
        }
    }
    return best;
}

}  // namespace linewright
