#include "cli/CheckCommand.h"

#include <fmt/format.h>

#include "host/runtime/Paths.h"
#include "merge/OutputFile.h"
#include "preflight/Preflight.h"
#include "render/Fonts.h"

namespace linewright {

namespace {

std::string Counted(std::size_t count, const char* what) {
    return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

std::string Summary(const PreflightReport& report, bool hasData) {
    std::string summary =
        fmt::format("{}: {}, {} with faults", Counted(report.pages.size(), "page"),
                    Counted(report.symbols.size(), "symbol"), report.FaultySymbols());
    if (hasData) {
        summary += fmt::format("; {} of the data not there", Counted(report.faults.size(), "row"));
    }
    return summary;
}

void Write(const std::string& name, const std::string& content) {
    OutputFile file(name);
    file.Write(content);
    file.Keep();
}

}  // namespace

ExitStatus RunCheck(Service& service, const CheckOptions& options, const RowOptions& rows,
                    Console& console) {
    const auto document = OpenDocument(options.document, options.dotsPerInch);
    std::optional<Expectations> expected;
    if (!options.data.empty()) {
        expected = ExpectationsOf(service, options.data, console.in, rows, console.language);
    }
    const auto show = [&](int page) {
        if (console.isErrTerminal) console.err << "page " << page << '\r' << std::flush;
    };
    const PreflightReport report =
        Preflight(*document, options.document, options.page, expected ? &*expected : nullptr, show);
    if (!options.output.empty()) {
        Fonts fonts(host::PathFromUtf8(options.fonts));
        Write(options.output, ReportPdf(report, *document, fonts));
    }
    console.out << (options.isJson ? ReportJson(report) : ReportText(report));
    console.err << Summary(report, expected.has_value()) << '\n';
    return report.HasFaults() ? kDoesNotScan : kDone;
}

}  // namespace linewright
