#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bench/Bars.h"
#include "core/FixedText.h"

namespace linewright::bench {

/** The longest result of a builder, whatever the symbology. */
using Symbol = FixedText<4096>;

/** A symbology that libzint has too, with rows that both take. */
struct Case {
    std::string_view name;
    /** The name by which the plug-in is asked for it. */
    std::string_view type;
    /** Appends a row's font string; the result is the status. nullptr where the encoder does not
     *  keep this apart from its data block. */
    int (*build)(const std::string& data, TextArea& symbol);
    Bars bars;
    int zintSymbology;
    /** A row as libzint wants to see it. */
    std::string (*zintRow)(const std::string& data);
    std::vector<std::string> rows;
    /** Whether the optional check character is asked for, and libzint's word for it. */
    bool addCheck = false;
    int zintOption = 0;
};

/** How many rows each case has: enough that a processor does not learn them. */
inline constexpr std::size_t kRowCount = 1024;

inline constexpr double kRatio = 2.0;

/** All cases, the same in every run. */
const std::vector<Case>& Cases();

}  // namespace linewright::bench
