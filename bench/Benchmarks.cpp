#include <benchmark/benchmark.h>
#include <zint.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "bench/Cases.h"
#include "bench/PlugIn.h"

// Times every level of every case beside libzint, in one run. A benchmark's name is the level, "/"
// and the case.

namespace linewright::bench {

namespace {

using ZintSymbol = std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)>;

ZintSymbol MakeZintSymbol() {
    return {ZBarcode_Create(), &ZBarcode_Delete};
}

/** Encodes a row in a symbol that was used before. */
void EncodeByZint(const Case& benchCase, const std::string& zintRow, zint_symbol& symbol) {
    ZBarcode_Clear(&symbol);
    symbol.symbology = benchCase.zintSymbology;
    symbol.option_2 = benchCase.zintOption;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(zintRow.data());
    if (ZBarcode_Encode(&symbol, bytes, static_cast<int>(zintRow.size())) >= ZINT_ERROR)
        throw std::runtime_error("libzint refused a row");
}

std::vector<std::string> ZintRows(const Case& benchCase) {
    std::vector<std::string> rows;
    for (const std::string& row : benchCase.rows) rows.push_back(benchCase.zintRow(row));
    return rows;
}

/** Calls `encode` with row after row for as long as is measured. */
template <class Encode>
void ForRows(benchmark::State& state, const std::vector<std::string>& rows, Encode encode) {
    std::size_t row = 0;
    for (auto _ : state) {
        encode(rows[row]);
        row = (row + 1) % kRowCount;
    }
}

void ByBuilder(benchmark::State& state, const Case& benchCase) {
    Symbol symbol;
    ForRows(state, benchCase.rows, [&](const std::string& row) {
        symbol.Clear();
        benchmark::DoNotOptimize(benchCase.build(row, symbol));
        benchmark::DoNotOptimize(symbol.View().data());
        benchmark::ClobberMemory();
    });
}

constexpr auto kUse = [](std::string_view result) {
    benchmark::DoNotOptimize(result.data());
    benchmark::ClobberMemory();
};

void ByZint(benchmark::State& state, const Case& benchCase) {
    const ZintSymbol symbol = MakeZintSymbol();
    ForRows(state, ZintRows(benchCase), [&](const std::string& row) {
        EncodeByZint(benchCase, row, *symbol);
        benchmark::DoNotOptimize(symbol->encoded_data[0][0]);
        benchmark::ClobberMemory();
    });
}

/** The rows of a case in which the two print something else. */
int CountDifferences(PlugIn& plugIn, const Case& benchCase) {
    const ZintSymbol symbol = MakeZintSymbol();
    plugIn.Choose(benchCase);
    int differences = 0;
    for (const std::string& row : benchCase.rows) {
        EncodeByZint(benchCase, benchCase.zintRow(row), *symbol);
        const std::string theirs = benchCase.bars.ofZint(*symbol);
        plugIn.Request(row, [&](std::string_view result) {
            const std::string ours = benchCase.bars.ofFontString(result);
            if (ours == theirs && !ours.empty()) return;
            if (++differences > 1) return;
            std::fprintf(stderr, "%s: %s\n  ours   %s\n  libzint %s\n", benchCase.name.data(),
                         row.c_str(), ours.c_str(), theirs.c_str());
        });
    }
    return differences;
}

void Register(PlugIn& plugIn, const Case& benchCase) {
    const auto add = [&](std::string name, auto run) {
        name.append(1, '/').append(benchCase.name);
        benchmark::RegisterBenchmark(name.c_str(), run);
    };
    add("libzint", [&](benchmark::State& state) { ByZint(state, benchCase); });
    if (benchCase.build)
        add("builder", [&](benchmark::State& state) { ByBuilder(state, benchCase); });
    add("encode", [&](benchmark::State& state) {
        plugIn.Choose(benchCase);
        ForRows(state, benchCase.rows, [&](const std::string& row) { plugIn.Encode(row, kUse); });
    });
    for (const bool isUtf8 : {false, true}) {
        add(isUtf8 ? "request UTF-8" : "request", [&plugIn, &benchCase, isUtf8](auto& state) {
            plugIn.Choose(benchCase, isUtf8);
            ForRows(state, benchCase.rows,
                    [&](const std::string& row) { plugIn.Request(row, kUse); });
        });
    }
}

int Run(int argumentCount, char** arguments) {
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) return EXIT_FAILURE;
    PlugIn plugIn;
    int differences = 0;
    for (const Case& benchCase : Cases()) {
        differences += CountDifferences(plugIn, benchCase);
        Register(plugIn, benchCase);
    }
    if (differences > 0) {
        std::fprintf(stderr, "%d rows print something else than libzint's\n", differences);
        return EXIT_FAILURE;
    }
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}

}  // namespace

}  // namespace linewright::bench

int main(int argumentCount, char** arguments) try {
    return linewright::bench::Run(argumentCount, arguments);
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", arguments[0], error.what());
    return EXIT_FAILURE;
}
