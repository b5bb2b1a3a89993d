#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "preflight/Area.h"
#include "preflight/Measures.h"
#include "scanners/Reading.h"
#include "types/BarcodeType.h"

namespace linewright {

/** What is not as it should be, of a symbol or of a document. The parameters, UTF-8, fill a
 *  sentence in the order in which they stand here; lengths are in mm. */
struct Fault {
    enum class Kind {
        /** Less white than the standard's: what there is in X-dimensions, and what it should be. */
        kQuietLeft,
        kQuietRight,
        /** The X-dimension, the least and the largest of the symbology. */
        kXDimension,
        /** Bars wider or narrower than they should be: by how many per cent of the X-dimension. */
        kWideBars,
        kNarrowBars,
        /** The symbol contrast in per cent. */
        kContrast,
        /** The grade, and the part that makes it so low: its name and value. */
        kGrade,
        /** Something lies upon bars: how many per cent of them are seen. */
        kCovered,
        /** Bars that no scanner reads. */
        kUnread,
        /** No row has this symbol. */
        kUnexpected,
        /** What the row encodes to instead: its line and data. */
        kOtherData,
        /** As often as rows have it, it was found before: the line of one of them. */
        kTwice,
        /** The row's page, and its line. */
        kWrongPage,
        /** The row's type and line; the symbology is another one. */
        kOtherSymbology,
        /** A row's symbol was not found: line, type, data. */
        kMissing,
        /** A row that the plug-in refuses: line, and why. */
        kRefusedRow,
    };

    Kind kind{};
    std::vector<std::string> parameters{};
};

/** A symbol on a page. */
struct FoundSymbol {
    int page = 1;
    Symbology symbology = Symbology::kText;
    /** What was read; of postal and MSI symbols by this system itself. Nothing of unread bars. */
    Reading reading;
    /** Of the bars, without quiet zones. */
    Area area;
    /** By how much it is turned clockwise: 0, 90, 180 or 270. */
    int degrees = 0;
    /** Of the bars that carry data, in mm. */
    double height = 0;
    std::optional<Measures> measures{};
    /** Of text that stands there; "" where none is known. */
    std::string font{};
    /** The line of the row that it belongs to. */
    std::optional<std::uint64_t> line{};
    /** Whether bars alone do not say that there is a symbol: some noise reads so. */
    bool isDoubtful = false;
    std::vector<Fault> faults{};
};

/** The symbology's name, "EAN-13". */
std::string NameOf(const FoundSymbol& symbol);

/** Which of the EAN and UPC symbols it is, by what was read. */
EanUpcForm FormOf(const Reading& reading);

}  // namespace linewright
