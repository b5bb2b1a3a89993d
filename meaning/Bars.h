#pragma once

#include <string>
#include <string_view>

namespace linewright::meaning {

/** What a reader makes of bars. */
enum class Symbol {
    kRead,
    /** Code 128 without a start character. */
    kNoStart,
    /** A symbol but for its check digit or character, which makes readers refuse it. */
    kWrongCheck,
    /** Anything else. */
    kNone,
};

/** What the bars of a font string say. */
struct Bars {
    Symbol symbol = Symbol::kNone;
    /** In the form of Meaning::carried. */
    std::string text{};
    std::string addOn{};
    bool isGs1 = false;
    /** The six digits in the bars of UPC-E, also where their check digit is wrong. */
    std::string upcEDigits{};
};

// Readers of font strings, of any bytes.

Bars ReadClassicCode128(std::string_view fontString);
Bars ReadCode128(std::string_view fontString);
Bars ReadClassicCode39(std::string_view fontString);
Bars ReadCode39(std::string_view fontString);
Bars ReadClassicCodabar(std::string_view fontString);
Bars ReadCodabar(std::string_view fontString);
Bars ReadClassicInterleaved2of5(std::string_view fontString);
Bars ReadInterleaved2of5(std::string_view fontString);
Bars ReadClassicMsi(std::string_view fontString);
Bars ReadMsi(std::string_view fontString);
Bars ReadClassicRetail(std::string_view fontString);
Bars ReadRetail(std::string_view fontString);
Bars ReadClassicPostnet(std::string_view fontString);
Bars ReadPostnet(std::string_view fontString);
/** The bars themselves, as USPS-B-3200 writes them: "A", "D", "F" and "T". */
Bars ReadIntelligentMail(std::string_view fontString);
/** Digits without bars. */
Bars ReadDigits(std::string_view fontString);

}  // namespace linewright::meaning
