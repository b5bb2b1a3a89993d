#include "preflight/Preflight.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "merge/Failure.h"
#include "preflight/PageSymbols.h"
#include "preflight/Standard.h"
#include "text/Readable.h"

namespace linewright {

bool PreflightReport::HasFaults() const {
    return !faults.empty() || FaultySymbols() > 0;
}

std::size_t PreflightReport::FaultySymbols() const {
    return static_cast<std::size_t>(
        std::count_if(symbols.begin(), symbols.end(),
                      [](const FoundSymbol& symbol) { return !symbol.faults.empty(); }));
}

PreflightReport Preflight(const Document& document, const std::string& name,
                          std::optional<int> page, Expectations* expected,
                          const std::function<void(int)>& show) {
    PreflightReport report;
    report.document = name;
    report.pageCount = document.PageCount();
    if (page && *page > report.pageCount) {
        throw Failure(fmt::format("{}: has {} page{}; there is no page {}", Readable(name),
                                  report.pageCount, report.pageCount == 1 ? "" : "s", *page));
    }
    for (int number = page.value_or(1); number <= page.value_or(report.pageCount); ++number) {
        if (show) show(number);
        Page read = document.ReadPage(number);
        std::vector<FoundSymbol> symbols = SymbolsOf(document, read);
        std::move(symbols.begin(), symbols.end(), std::back_inserter(report.symbols));
        Page size;
        size.number = number;
        size.width = read.width;
        size.height = read.height;
        size.pixelsPerMillimetre = read.pixelsPerMillimetre;
        report.pages.push_back(std::move(size));
    }
    std::map<std::uint64_t, const BarcodeType*> typesOf;
    if (expected != nullptr) {
        report.faults = Compare(report.symbols, *expected, page);
        for (const ExpectedSymbol& row : expected->symbols) typesOf[row.line] = row.type;
    }
    // Without bars or data that confirm them they are noise.
    std::erase_if(report.symbols,
                  [](const FoundSymbol& symbol) { return symbol.isDoubtful && !symbol.line; });
    for (FoundSymbol& symbol : report.symbols) {
        const auto type = symbol.line ? typesOf.find(*symbol.line) : typesOf.end();
        JudgeMeasures(symbol, type == typesOf.end() ? nullptr : type->second);
    }
    return report;
}

}  // namespace linewright
