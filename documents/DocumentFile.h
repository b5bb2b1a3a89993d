#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "documents/Document.h"
#include "merge/MergeFile.h"

namespace linewright {

/** A document of the rows of a file. Texts are UTF-8. */
struct DocumentFileWish {
    /** The output's ending says what is written. */
    MergeFiles files;
    /** Of these how rows are read, and what becomes of refused ones. */
    const MergeOptions& rows;
    /** A file of TOML, or the name of a sheet; "" for the usual one. */
    std::string layout;
    /** In points; the types' own unless stated. */
    std::optional<double> xDimension;
    /** In place of it: per cent of the types' own. */
    std::optional<double> magnification;
    /** The folder of the barcode fonts. */
    std::string fonts;
};

/** Where it is made: all of it is borrowed. */
struct DocumentPlace {
    Service& service;
    std::istream& in;
    std::ostream& out;
    Language language;
    /** Says a sentence about a row. */
    std::function<void(std::uint64_t line, const std::string& sentence)> say;
    /** Called behind each row. */
    std::function<void(const RowFile& file, std::uint64_t rows)> show;
};

struct DocumentResult {
    MergeCounts counts;
    std::size_t pages = 0;
    /** The line of the refused row that ended the run; none where it went to its end. */
    std::optional<std::uint64_t> stoppedAt{};
};

/** Makes a document of a file's rows, which appears whole or not at all: not when refused rows
 * ended the run, of which rejects and summary tell all the same. Throws Failure for files that
 * cannot be read or written, and where there is no row to set; LayoutFailure; DrawingFailure and
 *  RequestFailure for what is no row's fault. */
DocumentResult MakeDocumentFile(const DocumentPlace& place, const DocumentFileWish& wish);

}  // namespace linewright
