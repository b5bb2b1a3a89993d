#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "preflight/Comparison.h"
#include "preflight/Document.h"

namespace linewright {

class Fonts;

/** What was found in a document. */
struct PreflightReport {
    std::string document;
    int pageCount = 0;
    /** The sizes of the pages that were looked at, without their pictures. */
    std::vector<Page> pages;
    std::vector<FoundSymbol> symbols;
    /** Of the document: rows that it does not hold. */
    std::vector<Fault> faults;

    bool HasFaults() const;
    std::size_t FaultySymbols() const;
};

/** Reads all pages of a document, or one by its number from 1. `expected` is what it should hold;
 *  `show` is told the number of each page before it is read. Throws Failure. */
PreflightReport Preflight(const Document& document, const std::string& name,
                          std::optional<int> page, Expectations* expected,
                          const std::function<void(int)>& show = {});

/** A fault as a sentence without a full stop. */
std::string Sentence(const Fault& fault);
/** What a symbol says, for people. */
std::string ShownData(const FoundSymbol& symbol);

/** What was measured of a symbol, as lines. */
std::vector<std::string> SymbolWords(const FoundSymbol& symbol);

// A report in three forms.

std::string ReportText(const PreflightReport& report);
/** An object, with its line break. */
std::string ReportJson(const PreflightReport& report);
/** A PDF file: each page's picture with its symbols framed, and what was found behind. */
std::string ReportPdf(const PreflightReport& report, const Document& document, Fonts& fonts);

}  // namespace linewright
