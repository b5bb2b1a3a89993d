#pragma once

#include <optional>
#include <string>

#include "cli/Console.h"
#include "merge/RowColumns.h"
#include "requests/Service.h"

namespace linewright {

struct CheckOptions {
    std::string document;
    /** A CSV file that says what the document holds; "" for none. */
    std::string data;
    std::optional<int> page;
    std::optional<double> dotsPerInch;
    bool isJson = false;
    /** A PDF file to write; "" for none. */
    std::string output;
    /** The folder that holds the fonts' files, UTF-8. */
    std::string fonts;
};

/** Reads the barcodes of a document, measures them, and compares them with the rows of a file:
 *  kDoesNotScan where something would not scan or does not agree. */
ExitStatus RunCheck(Service& service, const CheckOptions& options, const RowOptions& rows,
                    Console& console);

}  // namespace linewright
