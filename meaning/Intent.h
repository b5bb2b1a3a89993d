#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linewright::meaning {

/** Data as an encoder gets it: converted from UTF-8, without spaces at the ends. */
struct TypedData {
    std::string_view bytes;
    /** Whether a check digit or character was asked for, where a type leaves it open. */
    bool isCheckWanted = false;
};

/** What data means by its type's rules. */
struct Intent {
    /** What the symbol may carry, in the form of Meaning::carried, the plainest first; none where
     *  nobody can say. */
    std::vector<std::string> mayCarry{};
    /** The same for what is left of data when the encoder has left characters out. */
    std::vector<std::string> mayCarryOfRest{};
    std::string addOn{};
    bool isGs1 = false;
};

// What each type's data means. All take any bytes.

Intent ClassicCode128Intent(const TypedData& data);
Intent ClassicCode128CIntent(const TypedData& data);
Intent Code128Intent(const TypedData& data);
Intent ClassicCode39Intent(const TypedData& data);
Intent ClassicCode39FullAsciiIntent(const TypedData& data);
Intent Code39Intent(const TypedData& data);
Intent ClassicCodabarIntent(const TypedData& data);
Intent CodabarIntent(const TypedData& data);
Intent ClassicInterleaved2of5Intent(const TypedData& data);
Intent Interleaved2of5Intent(const TypedData& data);
Intent ClassicInterleaved2of5TextIntent(const TypedData& data);
Intent ClassicMsiIntent(const TypedData& data);
Intent MsiIntent(const TypedData& data);
Intent ClassicPostnetIntent(const TypedData& data);
Intent PostnetIntent(const TypedData& data);
/** Nobody can say: the bars hold the digits in a way of their own. */
Intent IntelligentMailIntent(const TypedData& data);
Intent Ean13Intent(const TypedData& data);
Intent Ean8Intent(const TypedData& data);
Intent UpcAIntent(const TypedData& data);
Intent UpcEIntent(const TypedData& data);

/** The bytes before the first NUL: all that some encoders see. */
std::string_view BeforeNul(std::string_view data);
bool AreDigits(std::string_view text);

}  // namespace linewright::meaning
