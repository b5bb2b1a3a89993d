#pragma once

#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "merge/RowColumns.h"
#include "preflight/FoundSymbol.h"
#include "requests/Service.h"
#include "words/Words.h"

namespace linewright {

/** What a row's symbol has to say. */
struct ExpectedSymbol {
    std::uint64_t line = 0;
    const BarcodeType* type = nullptr;
    /** As it stands in the file. */
    std::string data;
    Meaning meaning;
    /** By the file's column "page", where it has one. */
    std::optional<int> page{};
    bool isFound = false;
};

/** What a file of rows says that a document holds. */
struct Expectations {
    std::vector<ExpectedSymbol> symbols;
    /** Rows that the plug-in refuses, so that no document can hold them. */
    std::vector<Fault> refused;
};

/** Encodes the rows of a CSV file by its UTF-8 name, as a batch does; digits without bars are left
 *  out. Throws Failure for a file that cannot be read. */
Expectations ExpectationsOf(Service& service, const std::string& name, std::istream& standardInput,
                            const RowOptions& options, Language language);

/** Gives each symbol the line of its row, adds what does not agree to the symbols' faults, and
 *  returns what is missing. With `page` only that page was looked at. */
std::vector<Fault> Compare(std::vector<FoundSymbol>& symbols, Expectations& expected,
                           std::optional<int> page);

}  // namespace linewright
