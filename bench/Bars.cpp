#include "bench/Bars.h"

#include <zint.h>

#include "standards/Code39Patterns.h"
#include "tests/current/Elements.h"

namespace linewright::bench {

namespace {

std::string Modules(const zint_symbol& symbol, int row = 0) {
    std::string modules;
    for (int module = 0; module < symbol.width; ++module)
        modules += symbol.encoded_data[row][module / 8] >> (module % 8) & 1 ? '1' : '0';
    return modules;
}

/** The last element is a bar. */
Elements UpToLastBar(Elements elements) {
    if (!elements.empty() && elements.size() % 2 == 0) elements.pop_back();
    return elements;
}

std::string Widths(const Elements& elements) {
    std::string widths;
    for (const double width : elements) widths += static_cast<char>('0' + static_cast<int>(width));
    return widths;
}

std::string TwoWidths(const Elements& elements) {
    std::string widths;
    for (const double width : elements) widths += width == 1 ? 'n' : 'w';
    return widths;
}

/** Runs longer than any of a retail symbol's stand in front of an add-on. */
std::string RetailWidths(const Elements& elements) {
    Elements printed;
    for (const double width : elements)
        if (width <= 4) printed.push_back(width);
    return Widths(printed);
}

std::string ClassicCode39Widths(std::string_view text) {
    std::string widths;
    for (const char letter : text) {
        const auto value = Code39Value(letter == '!' ? ' ' : letter);
        if (!widths.empty()) widths += 'n';  // the gap between characters
        widths += kCode39Patterns[value.value_or(kCode39StartStop)];
    }
    return widths;
}

/** A letter for each bar, which stand in every second module, by the rows that it is dark in. */
std::string HeightLetters(const zint_symbol& symbol, std::string_view letters) {
    const std::string upper = Modules(symbol, 0);
    const std::string lower = Modules(symbol, symbol.rows - 1);
    const bool hasDescenders = symbol.rows == 3;
    std::string text;
    for (std::size_t module = 0; module < upper.size(); module += 2) {
        const std::size_t reachesDown = hasDescenders && lower[module] == '1' ? 1 : 0;
        text += letters[2 * (upper[module] == '1') + reachesDown];
    }
    return text;
}

}  // namespace

const Bars kCode128Bars{
    [](std::string_view text) { return Widths(UpToLastBar(BarsFontElements(text))); },
    [](const zint_symbol& symbol) { return Widths(UpToLastBar(RunsOf(Modules(symbol)))); }};

const Bars kTwoWidthBars{
    [](std::string_view text) { return TwoWidths(UpToLastBar(BarsFontElements(text))); },
    [](const zint_symbol& symbol) { return TwoWidths(UpToLastBar(RunsOf(Modules(symbol)))); }};

const Bars kClassicCode39Bars{ClassicCode39Widths, kTwoWidthBars.ofZint};

const Bars kRetailBars{
    [](std::string_view text) {
        const auto addOn = std::min(text.find('+'), text.size());
        return RetailWidths(UpToLastBar(RunsOf(EanUpcFontModules(text.substr(0, addOn))))) +
               RetailWidths(UpToLastBar(RunsOf(EanUpcFontModules(text.substr(addOn)))));
    },
    [](const zint_symbol& symbol) { return RetailWidths(UpToLastBar(RunsOf(Modules(symbol)))); }};

const Bars kPostnetBars{PostnetFontBars,
                        [](const zint_symbol& symbol) { return HeightLetters(symbol, "0?1?"); }};

const Bars kIntelligentMailBars{
    [](std::string_view text) { return std::string(text); },
    [](const zint_symbol& symbol) { return HeightLetters(symbol, "TDAF"); }};

}  // namespace linewright::bench
