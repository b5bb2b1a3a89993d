#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "render/Sheet.h"
#include "requests/DrawnBarcode.h"
#include "words/Words.h"

namespace linewright {

struct ProofCounts {
    std::size_t rows = 0;
    std::size_t refused = 0;
    std::size_t unreadable = 0;
    std::size_t withoutScanner = 0;

    std::string Summary() const;
};

/** A sheet of the barcodes of rows, each with its font and size and what the scanners read, in
 * front of it the tally and the refused ones. Texts are UTF-8. Throws DrawingFailure. */
class Proof {
  public:
    /** The fonts outlive it. Sentences are in the language, the rest is in English. */
    Proof(Fonts& fonts, Paper paper, const std::string& title, Language sentences)
        : language(sentences), sheet(fonts, paper, title) {}

    /** Adds a row that was drawn; the title, which may be empty, says what it is for. */
    void Show(const DrawnBarcode& drawn, const BarcodeWish& wish, const std::string& title,
              std::uint64_t line);
    void Refuse(const BarcodeWish& wish, const std::string& why, std::uint64_t line);

    const ProofCounts& Counts() const { return counts; }
    /** The PDF, with the date on its first page. To be called once, as the last. */
    std::string Finish(const std::string& date);

  private:
    Language language;
    Sheet sheet;
    std::vector<std::string> refused;
    ProofCounts counts;
};

}  // namespace linewright
