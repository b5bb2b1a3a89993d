#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "bench/Cases.h"
#include "bench/ManyRows.h"
#include "bench/PlugIn.h"
#include "stream/AnswerLines.h"

// Makes a number of calls for an instruction counter: CASE LEVEL CALLS. Two numbers of calls tell
// what one of them takes. The level "stream" makes multiples of kRowCount.

namespace linewright::bench {

namespace {

const Case* FindCase(std::string_view name) {
    for (const Case& benchCase : Cases())
        if (benchCase.name == name) return &benchCase;
    return nullptr;
}

template <class Encode>
void MakeCalls(const Case& benchCase, long count, Encode encode) {
    for (long call = 0; call < count; ++call)
        encode(benchCase.rows[static_cast<std::size_t>(call) % kRowCount]);
}

/** The answers to lines of requests, as `linewright stream` gives them. */
std::size_t AnswerRows(const Case& benchCase, long count) {
    std::string lines;
    for (const std::string& row : benchCase.rows) {
        lines.append("{\"type\":\"").append(benchCase.type);
        lines.append("\",\"data\":\"").append(row).append("\"}\n");
    }
    const std::string folder = MakeFolder();
    Service service({.plugin = LINEWRIGHT_PLUGIN, .roamingFolder = folder, .appFolder = folder});
    std::ostringstream out;
    for (long call = 0; call < count; call += kRowCount) {
        std::istringstream in(lines);
        if (!AnswerLines(service, in, out, Language::kEnglish))
            throw std::runtime_error("a row was no request");
    }
    service.Stop();
    std::filesystem::remove_all(folder);
    return out.str().size();
}

int Run(const Case& benchCase, std::string_view level, long count) {
    if (level == "many") {
        std::printf("%zu\n", EncodeMany(benchCase, static_cast<std::size_t>(count)));
        return EXIT_SUCCESS;
    }
    if (level == "stream") {
        std::printf("%zu\n", AnswerRows(benchCase, count));
        return EXIT_SUCCESS;
    }
    PlugIn plugIn;
    plugIn.Choose(benchCase, level == "request UTF-8");
    std::size_t written = 0;
    const auto use = [&](std::string_view result) { written += result.size(); };
    if (level.starts_with("request")) {
        MakeCalls(benchCase, count, [&](const std::string& row) { plugIn.Request(row, use); });
    } else if (level == "encode") {
        MakeCalls(benchCase, count, [&](const std::string& row) { plugIn.Encode(row, use); });
    } else if (level == "builder" && benchCase.build) {
        Symbol symbol;
        MakeCalls(benchCase, count, [&](const std::string& row) {
            symbol.Clear();
            benchCase.build(row, symbol);
            use(symbol.View());
        });
    } else {
        std::fprintf(stderr, "%s has no such level\n", benchCase.name.data());
        return EXIT_FAILURE;
    }
    std::printf("%zu\n", written);
    return EXIT_SUCCESS;
}

}  // namespace

}  // namespace linewright::bench

int main(int argumentCount, char** arguments) try {
    using namespace linewright::bench;
    const Case* const benchCase = argumentCount == 4 ? FindCase(arguments[1]) : nullptr;
    if (!benchCase) {
        std::fprintf(stderr, "usage: %s CASE LEVEL CALLS\n", arguments[0]);
        return EXIT_FAILURE;
    }
    return Run(*benchCase, arguments[2], std::strtol(arguments[3], nullptr, 10));
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", arguments[0], error.what());
    return EXIT_FAILURE;
}
