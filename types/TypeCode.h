#pragma once

#include <cstdint>

namespace linewright {

/** The plug-in's number of a barcode type. A switch over them without a default is how a room says
 *  what it does for each type: the compiler names the one that is missing. */
enum class TypeCode : std::uint8_t {
    kClassicPostnet = 1,
    kIntelligentMail = 2,
    kClassicCodabar = 3,
    kClassicCode128A = 4,
    kClassicCode128B = 5,
    kClassicCode128C = 6,
    kClassicCode39 = 7,
    kClassicCode39FullAscii = 8,
    kEan8 = 9,
    kClassicEan13 = 10,
    kClassicInterleaved2of5 = 11,
    kClassicInterleaved2of5Text = 12,
    kClassicJan13 = 13,
    kClassicMsi = 14,
    kClassicUpcA = 15,
    kClassicUpcE = 16,
    kCodabar = 20,
    kCode39 = 21,
    kCode128 = 22,
    kEan13 = 23,
    kInterleaved2of5 = 24,
    kInterleaved2of5Text = 25,
    kJan13 = 26,
    kMsi = 27,
    kUpcA = 28,
    kUpcE = 29,
    kPostnet = 30,
};

}  // namespace linewright
