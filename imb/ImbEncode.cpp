#include "imb/ImbEncode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/CharClasses.h"
#include "imb/ImbBarMap.h"

namespace linewright {
namespace {

constexpr std::uint32_t kCharacterBits = 0x1FFF;
constexpr std::uint32_t kCodewordARange = 659;
constexpr std::uint32_t kCodewordRange = 1365;
constexpr std::uint32_t kCodewordJRange = 636;

using Codewords = std::array<std::uint32_t, kImbCharacterCount>;
using Characters = std::array<std::uint32_t, kImbCharacterCount>;

/** A character table, built on first use. */
template <int kBitCount, int kLength>
struct CharacterTable {
    std::array<std::uint32_t, kLength> entries{};
    bool built = false;

    bool Retrieve() {
        if (!built) built = ImbBuildNof13Table(entries.data(), kBitCount, kLength) == 1;
        return built;
    }
};

constinit CharacterTable<5, 1287> fiveOf13;
constinit CharacterTable<2, 78> twoOf13;
constinit bool selfTestPassed = false;

/** The text, or as much of it as shows that it is longer than `limit`. */
std::string_view Bounded(const char* text, std::size_t limit) {
    std::size_t length = 0;
    while (length <= limit && text[length] != '\0') ++length;
    return {text, length};
}

std::uint32_t DigitValue(char digit) {
    return static_cast<std::uint32_t>(digit - '0');
}

/** Numbers the routing codes through: none is 0, then come those of 5, of 9 and of 11 digits. */
std::uint64_t RoutingValue(std::string_view routing) {
    std::uint64_t value = 0;
    for (const char digit : routing) value = value * 10 + DigitValue(digit);
    if (routing.size() >= 5) value += 1;
    if (routing.size() >= 9) value += 100'000;
    if (routing.size() >= 11) value += 1'000'000'000;
    return value;
}

void MultiplyAdd(ImbBinaryValue& value, std::uint32_t factor, std::uint64_t summand) {
    std::uint64_t carry = summand;
    for (std::size_t place = value.size(); place-- > 0;) {
        carry += std::uint64_t{value[place]} * factor;
        value[place] = static_cast<std::uint8_t>(carry & 0xFF);
        carry >>= 8;
    }
}

/** Divides the value in place and returns the remainder. */
std::uint32_t DivideBy(ImbBinaryValue& value, std::uint32_t divisor) {
    std::uint32_t remainder = 0;
    for (std::uint8_t& byte : value) {
        remainder = remainder << 8 | byte;
        byte = static_cast<std::uint8_t>(remainder / divisor);
        remainder %= divisor;
    }
    return remainder;
}

ImbBinaryValue BinaryValue(std::string_view tracking, std::string_view routing) {
    ImbBinaryValue value{};
    MultiplyAdd(value, 1, RoutingValue(routing));
    for (std::size_t index = 0; index < tracking.size(); ++index) {
        MultiplyAdd(value, index == 1 ? 5 : 10, DigitValue(tracking[index]));
    }
    return value;
}

/** Codewords A to J. The frame check sequence's bit 10 goes into codeword A. */
ImbResult MakeCodewords(ImbBinaryValue value, std::uint32_t frameCheckSequence,
                        Codewords& codewords) {
    codewords.back() = DivideBy(value, kCodewordJRange);
    for (std::size_t index = codewords.size() - 2; index > 0; --index) {
        codewords[index] = DivideBy(value, kCodewordRange);
    }
    codewords.front() = DivideBy(value, kCodewordARange);
    if (codewords.front() >= kCodewordARange || codewords.back() >= kCodewordJRange) {
        return USPS_FSB_ENCODER_API_CODEWORD_CONVERSION_FAILED;
    }
    codewords.back() *= 2;
    if (frameCheckSequence & 0x400) codewords.front() += kCodewordARange;
    return USPS_FSB_ENCODER_API_SUCCESS;
}

/** Characters A to J. The frame check sequence's bits 0 to 9 turn them into their complements. */
ImbResult MakeCharacters(const Codewords& codewords, std::uint32_t frameCheckSequence,
                         Characters& characters) {
    for (std::size_t index = 0; index < codewords.size(); ++index) {
        const std::uint32_t codeword = codewords[index];
        if (codeword >= kCodewordRange) return USPS_FSB_ENCODER_API_CHARACTER_RANGE_ERROR;
        const std::size_t fiveOf13Size = fiveOf13.entries.size();
        characters[index] = codeword < fiveOf13Size ? fiveOf13.entries[codeword]
                                                    : twoOf13.entries[codeword - fiveOf13Size];
        if (frameCheckSequence >> index & 1) characters[index] ^= kCharacterBits;
    }
    return USPS_FSB_ENCODER_API_SUCCESS;
}

char BarLetter(const ImbBar& bar, const Characters& characters) {
    const auto isSet = [&](ImbBit place) {
        return (characters[place.character] >> place.bit & 1) != 0;
    };
    if (isSet(bar.ascender)) return isSet(bar.descender) ? 'F' : 'A';
    return isSet(bar.descender) ? 'D' : 'T';
}

/** The four examples that USPS-B-3200 publishes, one for each routing length. */
bool PassesSelfTest() {
    struct Example {
        const char* routing;
        std::string_view bars;
    };
    constexpr Example kExamples[] = {
        {"", "ATTFATTDTTADTAATTDTDTATTDAFDDFADFDFTFFFFFTATFAAAATDFFTDAADFTFDTDT"},
        {"01234", "DTTAFADDTTFTDTFTFDTDDADADAFADFATDDFTAAAFDTTADFAAATDFDTDFADDDTDFFT"},
        {"012345678", "ADFTTAFDTTTTFATTADTAAATFTFTATDAAAFDDADATATDTDTTDFDTDATADADTDFFTFA"},
        {"01234567891", "AADTFFDFTDADTAADAATFDTDDAAADDTDTTDAFADADDDTFFFDDTTTADFAAADFTDAADA"},
    };
    return std::all_of(std::begin(kExamples), std::end(kExamples), [](const Example& example) {
        std::array<char, kImbBarCount + 1> bars{};
        return ImbEncodeCore("01234567094987654321", example.routing, bars.data()) ==
                   USPS_FSB_ENCODER_API_SUCCESS &&
               std::string_view(bars.data(), kImbBarCount) == example.bars;
    });
}

ImbResult CheckTracking(std::string_view tracking) {
    if (tracking.size() != kImbTrackingLength) return USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH;
    if (!AreDigits(tracking)) return USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS;
    if (tracking[1] > '4') return USPS_FSB_ENCODER_API_TRACK_STRING_BAD_DIGIT2;
    return USPS_FSB_ENCODER_API_SUCCESS;
}

ImbResult CheckRouting(std::string_view routing) {
    if (!IsImbRoutingLength(routing.size())) return USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH;
    if (!AreDigits(routing)) return USPS_FSB_ENCODER_API_ROUTE_STRING_NOT_DIGITS;
    return USPS_FSB_ENCODER_API_SUCCESS;
}

}  // namespace

ImbResult ImbEncode(const char* tracking, const char* routing, char* bars) {
    if (!selfTestPassed) selfTestPassed = PassesSelfTest();
    if (!selfTestPassed) return USPS_FSB_ENCODER_API_SELF_TEST_FAILED;

    if (tracking == nullptr) return USPS_FSB_ENCODER_API_TRACK_STRING_IS_NULL;
    if (routing == nullptr) return USPS_FSB_ENCODER_API_ROUTE_STRING_IS_NULL;
    if (bars == nullptr) return USPS_FSB_ENCODER_API_BAR_STRING_IS_NULL;

    if (const ImbResult result = CheckTracking(Bounded(tracking, kImbTrackingLength)))
        return result;
    if (const ImbResult result = CheckRouting(Bounded(routing, kImbLongestRouting))) return result;
    return ImbEncodeCore(tracking, routing, bars);
}

ImbResult ImbEncodeCore(const char* tracking, const char* routing, char* bars) {
    const std::string_view routingDigits = Bounded(routing, kImbLongestRouting);
    if (!IsImbRoutingLength(routingDigits.size()))
        return USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH;

    const ImbBinaryValue value = BinaryValue({tracking, kImbTrackingLength}, routingDigits);
    const std::uint32_t frameCheckSequence = ImbFrameCheckSequence(value);

    if (!fiveOf13.Retrieve() || !twoOf13.Retrieve()) {
        return USPS_FSB_ENCODER_API_RETRIEVE_TABLE_FAILED;
    }
    Codewords codewords{};
    if (const ImbResult result = MakeCodewords(value, frameCheckSequence, codewords)) return result;
    Characters characters{};
    if (const ImbResult result = MakeCharacters(codewords, frameCheckSequence, characters)) {
        return result;
    }
    for (const ImbBar& bar : kImbBarMap) *bars++ = BarLetter(bar, characters);
    *bars = '\0';
    return USPS_FSB_ENCODER_API_SUCCESS;
}

std::uint32_t ImbFrameCheckSequence(const ImbBinaryValue& value) {
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

int ImbBuildNof13Table(std::uint32_t* table, int bitCount, int tableLength) {
    int front = 0;
    int back = tableLength - 1;
    for (std::uint32_t value = 0; value <= kCharacterBits; ++value) {
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
