#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "merge/MergeCounts.h"
#include "merge/ResultColumns.h"
#include "merge/RowColumns.h"
#include "merge/RowWalk.h"
#include "requests/PlainBarcodes.h"
#include "words/Words.h"

namespace linewright {

/** What becomes of the rows of a file. */
struct MergeOptions {
    RowOptions rows;
    ResultNames names;
    /** Of font, size and text. */
    std::vector<Result> added;
    /** In points; the size is the type's usual one unless stated. */
    std::optional<double> xDimension;
    bool keepsInput = true;
    /** The input's unless stated. */
    std::optional<Encoding> to;
    /** Draws each barcode with the fonts in `fonts` (a folder, UTF-8) and has it read. */
    bool isVerified = false;
    std::string fonts;
    /** Where refused rows go, and where the summary goes; "" for neither. */
    std::string rejects;
    std::string summary;
    bool areRefusalsFine = false;
    /** So many refused rows end the run. */
    std::optional<std::uint64_t> stopAt;
    /** How many processes make barcodes. */
    unsigned jobs = 1;
    /** The rows of one part of the file; its columns are named in the first part, or in all. */
    std::optional<Shard> shard;
    bool haveAllShardsHeader = false;
    /** Whether a run that was ended goes on, and this one leaves what it needs to go on. Then
     *  `circumstances` says all that decides about the result but the input. */
    bool isResumed = false;
    std::string circumstances;
};

/** A barcode and what scanners made of it. Texts are UTF-8, "" for a refusal. */
struct ScannedBarcode {
    BarcodeOutcome outcome;
    /** "scans", "scans as …", "does not scan" or "no scanner for this symbology". */
    std::string scan;
    /** What the scanners read. */
    std::string read;
};

/** Makes a barcode and has scanners read it. */
using MakeScanned = std::function<ScannedBarcode(const BarcodeWish&)>;

/** Makes the barcodes of rows, one after the other, and appends each row with its results. */
class Merge {
  public:
    /** What rows are taken from and where they go; all of it is borrowed. */
    struct Ways {
        Service& service;
        RowColumns& columns;
        ResultColumns& results;
        BlockWriter& out;
        /** Where refused rows go too; nullptr for nowhere. */
        ResultColumns* rejectColumns = nullptr;
        BlockWriter* rejects = nullptr;
        /** Empty for barcodes that nobody scans. */
        MakeScanned scan{};
    };

    Merge(const Ways& given, const MergeOptions& wanted, Language sentences);

    /** Throws Failure where the row cannot be written in the encoding of the output. */
    void Take(const Record& row);
    /** Of the rows since they were handed over last. */
    const MergeCounts& Counts() const { return counts; }
    MergeCounts HandOverCounts() { return std::exchange(counts, {}); }

  private:
    bool TakePlainly(const Record& row, const RowWish& wish);
    void TakeClosely(const Record& row, const RowWish& wish);
    void SetFace(const BarcodeType& type);
    void Refuse(const Record& row, const std::string& status, const std::string& reason,
                const std::string& warning);
    void Reject(const Record& row, const std::string& reason);

    Ways ways;
    const MergeOptions& options;
    Language language;
    PlainBarcodes plain;
    bool hasFace;
    bool hasText;
    bool isPlainPossible;
    /** Of the face that was set last. */
    const BarcodeType* faceType = nullptr;
    std::string size;
    MergeCounts counts;
};

/** The results that are written for each row, in their order. */
std::vector<Result> ResultsOf(const MergeOptions& options);

}  // namespace linewright
