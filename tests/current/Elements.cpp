#include "tests/current/Elements.h"

#include <algorithm>
#include <stdexcept>

namespace linewright {

namespace {

/** A to P are bars and spaces of one to four modules, W to Z of one or two and a half. */
std::pair<double, double> PairOf(char letter) {
    switch (letter) {
        case 'W': return {1, 1};
        case 'X': return {1, 2.5};
        case 'Y': return {2.5, 1};
        case 'Z': return {2.5, 2.5};
        default: break;
    }
    if (letter < 'A' || letter > 'P') throw std::runtime_error("not a letter of the bars font");
    return {(letter - 'A') / 4 + 1, (letter - 'A') % 4 + 1};
}

/** ISO/IEC 15420, number set A: space, bar, space, bar. */
constexpr std::string_view kSetAModules[] = {
    "0001101", "0011001", "0010011", "0111101", "0100011",
    "0110001", "0101111", "0111011", "0110111", "0001011",
};

std::string InSetA(std::size_t digit) {
    return std::string(kSetAModules[digit]);
}
std::string InSetC(std::size_t digit) {
    std::string modules = InSetA(digit);
    for (char& module : modules) module = module == '0' ? '1' : '0';
    return modules;
}
std::string InSetB(std::size_t digit) {
    std::string modules = InSetC(digit);
    std::reverse(modules.begin(), modules.end());
    return modules;
}

struct DigitLetters {
    std::string_view letters;
    std::string (*modules)(std::size_t digit);
};
constexpr DigitLetters kDigitLetters[] = {
    {"0123456789", InSetA},  {"ABCDEFGHIJ", InSetB},
    {"KLMNOPQRST", InSetC},  {"abcdefghij", InSetA},
    {"klmnopqrst", InSetC},  {"UVWXYuvwxy", [](std::size_t) { return std::string(); }},
    {"\"#$%&,./:;", InSetA}, {"z=?@[\\]_{}", InSetB},
};

std::string EanUpcModules(char letter) {
    switch (letter) {
        case '(': return "101";
        case '*': return "01010";
        case ')': return "010101";
        case '+': return "1011";
        case '!': return "01";
        case ' ': return "";
        default: break;
    }
    for (const auto& [letters, modules] : kDigitLetters) {
        const auto digit = letters.find(letter);
        if (digit != std::string_view::npos) return modules(digit);
    }
    throw std::runtime_error("not a letter of the EAN/UPC font");
}

std::string PostnetBars(char letter) {
    switch (letter) {
        case 'j': return "00";
        case 'k': return "01";
        case 'l': return "10";
        case 'm': return "11";
        case 'n': return "1";
        case 'o': return "0";
        default: throw std::runtime_error("not a letter of the Postnet font");
    }
}

}  // namespace

Elements BarsFontElements(std::string_view text) {
    Elements elements;
    for (const char letter : text) {
        const auto [bar, space] = PairOf(letter);
        elements.insert(elements.end(), {bar, space});
    }
    return elements;
}

std::string EanUpcFontModules(std::string_view text) {
    std::string modules;
    for (const char letter : text) modules += EanUpcModules(letter);
    return modules;
}

std::string PostnetFontBars(std::string_view text) {
    std::string bars;
    for (const char letter : text) bars += PostnetBars(letter);
    return bars;
}

Elements RunsOf(std::string_view modules) {
    Elements runs;
    char last = '0';
    for (const char module : modules) {
        if (module != last) runs.push_back(0);
        last = module;
        ++runs.back();
    }
    return runs;
}

std::string NarrowAndWide(const Elements& elements, double wide) {
    std::string pattern;
    for (const double width : elements) pattern += width == 1 ? 'n' : width == wide ? 'w' : '?';
    return pattern;
}

}  // namespace linewright
