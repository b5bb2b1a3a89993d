#include "tests/current/Code128Decoder.h"

#include <algorithm>
#include <stdexcept>

#include "standards/Code128Patterns.h"

namespace linewright {

namespace {

[[noreturn]] void Refuse(const char* what) {
    throw std::runtime_error(what);
}

/** Symbol values up to the check character, which is checked. */
std::vector<std::size_t> ValuesOf(const Elements& elements) {
    std::string widths;
    for (const double width : elements) widths += static_cast<char>('0' + static_cast<int>(width));
    const std::size_t stop = kCode128StopWidths.size();
    if (widths.size() < 3 * 6 + stop || (widths.size() - stop) % 6 != 0) Refuse("length");
    if (widths.substr(widths.size() - stop) != kCode128StopWidths) Refuse("stop");

    std::vector<std::size_t> values;
    for (std::size_t place = 0; place < widths.size() - stop; place += 6) {
        const auto row =
            std::find(kCode128Widths.begin(), kCode128Widths.end(), widths.substr(place, 6));
        if (row == kCode128Widths.end()) Refuse("pattern");
        values.push_back(static_cast<std::size_t>(row - kCode128Widths.begin()));
    }
    std::size_t sum = values[0];
    for (std::size_t place = 1; place + 1 < values.size(); ++place) sum += place * values[place];
    if (values.back() != sum % kCode128Modulus) Refuse("check character");
    values.pop_back();
    return values;
}

char SetOf(std::size_t start) {
    if (start < kCode128StartA || start > kCode128StartC) Refuse("start");
    return static_cast<char>('A' + (start - kCode128StartA));
}

std::string CharacterOf(char set, std::size_t value) {
    if (set == 'C')
        return {static_cast<char>('0' + value / 10), static_cast<char>('0' + value % 10)};
    if (set == 'A' && value >= 64) return {static_cast<char>(value - 64)};
    return {static_cast<char>(value + 32)};
}

/** ISO/IEC 15417:2007, table 1: what values from 95 or 99 on do, by set. */
constexpr std::string_view kSpecialA[] = {"<FNC3>", "<FNC2>", "shift", "C",
                                          "B",      "<FNC4>", "<FNC1>"};
constexpr std::string_view kSpecialB[] = {"<FNC3>", "<FNC2>", "shift", "C",
                                          "<FNC4>", "A",      "<FNC1>"};

}  // namespace

std::string DecodeCode128(const Elements& elements) {
    const std::vector<std::size_t> values = ValuesOf(elements);
    char set = SetOf(values[0]);
    bool isShifted = false;
    std::string text;
    for (std::size_t place = 1; place < values.size(); ++place) {
        const std::size_t value = values[place];
        const char current = isShifted ? (set == 'A' ? 'B' : 'A') : set;
        isShifted = false;
        if (value < (current == 'C' ? 100u : 96u)) {
            text += CharacterOf(current, value);
            continue;
        }
        if (value > 102) Refuse("start inside");
        std::string_view special = current == 'A' ? kSpecialA[value - 96] : kSpecialB[value - 96];
        if (current == 'C' && value == 100) special = "B";
        if (special == "shift") {
            isShifted = true;
        } else if (special.size() > 1) {
            text += special;
        } else {
            set = special[0];
        }
    }
    return text;
}

}  // namespace linewright
