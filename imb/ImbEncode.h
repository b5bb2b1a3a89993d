#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "imb/ImbBarMap.h"

// USPS Intelligent Mail barcode: the four-state encoding of USPS-B-3200. Plain arithmetic on fixed
// storage: nothing is allocated, nothing throws. Not reentrant: the memory of a passed self-test is
// process-wide, and all calls come from the host's main thread.

namespace linewright {

inline constexpr std::size_t kImbTrackingLength = 20;
inline constexpr std::size_t kImbLongestRouting = 11;

/** None, ZIP, ZIP+4 and delivery point. */
constexpr bool IsImbRoutingLength(std::size_t length) {
    return length == 0 || length == 5 || length == 9 || length == kImbLongestRouting;
}

enum ImbResult : std::int32_t {
    USPS_FSB_ENCODER_API_SUCCESS = 0,
    USPS_FSB_ENCODER_API_SELF_TEST_FAILED = 1,
    USPS_FSB_ENCODER_API_BAR_STRING_IS_NULL = 2,
    USPS_FSB_ENCODER_API_BYTE_CONVERSION_FAILED = 3,  // reserved, never returned
    USPS_FSB_ENCODER_API_RETRIEVE_TABLE_FAILED = 4,
    USPS_FSB_ENCODER_API_CODEWORD_CONVERSION_FAILED = 5,
    USPS_FSB_ENCODER_API_CHARACTER_RANGE_ERROR = 6,
    USPS_FSB_ENCODER_API_TRACK_STRING_IS_NULL = 7,
    USPS_FSB_ENCODER_API_ROUTE_STRING_IS_NULL = 8,
    USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH = 9,
    USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS = 10,
    USPS_FSB_ENCODER_API_TRACK_STRING_BAD_DIGIT2 = 11,
    USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH = 12,
    USPS_FSB_ENCODER_API_ROUTE_STRING_NOT_DIGITS = 13,
};

/** Tracking and routing code as one unsigned big-endian integer of 104 bits (the data takes
 *  102). */
using ImbBinaryValue = std::array<std::uint8_t, 13>;

/** Encodes a tracking code of 20 digits and a routing code of 0, 5, 9 or 11 digits, both
 *  NUL-terminated, into 65 letters of "A", "D", "F" and "T" and a NUL. `bars`: at least 66 bytes of
 *  the caller's, of no meaning unless the result is USPS_FSB_ENCODER_API_SUCCESS. Until it has
 *  passed once, every call begins with the self-test, whatever its arguments. */
ImbResult ImbEncode(const char* tracking, const char* routing, char* bars);
/** The same for codes whose lengths are known. */
ImbResult ImbEncode(std::string_view tracking, std::string_view routing, char* bars);

/** The encoding without the self-test and without any test of the arguments but the routing
 *  length. */
ImbResult ImbEncodeCore(const char* tracking, const char* routing, char* bars);

/** The 11-bit frame check sequence (CRC-11) of the low 102 bits. */
constexpr std::uint32_t ImbFrameCheckSequence(const ImbBinaryValue& value) {
    constexpr std::uint32_t kGenerator = 0xF35;
    constexpr int kSequenceBits = 11;
    std::uint32_t sequence = 0x7FF;
    for (std::size_t index = 0; index < value.size(); ++index) {
        const int bits = index == 0 ? 6 : 8;
        std::uint32_t data = std::uint32_t{value[index]} << (kSequenceBits - bits);
        for (int bit = 0; bit < bits; ++bit, data <<= 1) {
            const bool subtract = ((sequence ^ data) & 0x400) != 0;
            sequence = (sequence << 1 ^ (subtract ? kGenerator : 0)) & 0x7FF;
        }
    }
    return sequence;
}

/** Fills a table with the 13-bit values that have `bitCount` bits set, in the order of USPS-B-3200.
 *  Returns 1 when there are exactly `tableLength` of them, else 0; never writes past the table. */
constexpr int ImbBuildNof13Table(std::uint32_t* table, int bitCount, int tableLength) {
    constexpr std::uint32_t kValues = 1 << kImbBitsPerCharacter;
    int front = 0;
    int back = tableLength - 1;
    for (std::uint32_t value = 0; value < kValues; ++value) {
        if (std::popcount(value) != bitCount) continue;
        std::uint32_t reversed = 0;
        for (std::size_t bit = 0; bit < kImbBitsPerCharacter; ++bit) {
            reversed = reversed << 1 | (value >> bit & 1);
        }
        if (reversed < value) continue;  // stands in the table as the partner of `reversed`
        const int needed = reversed == value ? 1 : 2;
        if (back + 1 - front < needed) return 0;
        if (reversed == value) {
            table[back--] = value;
        } else {
            table[front++] = value;
            table[front++] = reversed;
        }
    }
    return front == back + 1 ? 1 : 0;
}

}  // namespace linewright
