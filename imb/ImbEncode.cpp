#include "imb/ImbEncode.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "core/CharClasses.h"
#include "core/Word.h"
#include "imb/ImbBarMap.h"
#include "imb/ImbTables.h"

namespace linewright {
namespace {

constexpr std::uint32_t kCharacterBits = 0x1FFF;
constexpr std::uint32_t kCodewordARange = 659;
constexpr std::uint32_t kCodewordJRange = 636;

using Codewords = std::array<std::uint32_t, kImbCharacterCount>;

constinit bool selfTestPassed = false;

/** The text, or as much of it as shows that it is longer than `limit`. */
std::string_view Bounded(const char* text, std::size_t limit) {
    const void* const end = std::memchr(text, '\0', limit + 1);
    return {text, end ? static_cast<std::size_t>(static_cast<const char*>(end) - text) : limit + 1};
}

std::uint64_t DigitValue(char digit) {
    return static_cast<std::uint64_t>(digit - '0');
}

std::uint64_t DecimalNumberOf(std::string_view digits) {
    std::uint64_t number = 0;
    for (; digits.size() >= kWordSize; digits.remove_prefix(kWordSize))
        number = number * 100'000'000 + DecimalNumber(LoadWord(digits.data()));
    for (const char digit : digits) number = number * 10 + DigitValue(digit);
    return number;
}

/** Numbers the routing codes through: none is 0, then come those of 5, of 9 and of 11 digits. */
std::uint64_t RoutingValue(std::string_view routing) {
    std::uint64_t value = DecimalNumberOf(routing);
    if (routing.size() >= 5) value += 1;
    if (routing.size() >= 9) value += 100'000;
    if (routing.size() >= 11) value += 1'000'000'000;
    return value;
}

/** An unsigned number of 128 bits, in places of 32 bits from the highest on. */
using LongNumber = std::array<std::uint64_t, 4>;

void MultiplyAdd(LongNumber& number, std::uint32_t factor, std::uint64_t summand) {
    std::uint64_t carry = summand;
    for (std::size_t place = number.size(); place-- > 0;) {
        carry += number[place] * factor;
        number[place] = carry & 0xFFFFFFFF;
        carry >>= 32;
    }
}

/** Divides the number in place and returns the remainder. */
template <std::uint32_t kDivisor>
std::uint32_t DivideBy(LongNumber& number) {
    std::uint64_t remainder = 0;
    for (std::uint64_t& place : number) {
        remainder = remainder << 32 | place;
        place = remainder / kDivisor;
        remainder %= kDivisor;
    }
    return static_cast<std::uint32_t>(remainder);
}

/** Tracking and routing code as one number: the routing code's, and behind it the digits of the
 *  tracking code, of which the second is below 5. */
LongNumber BinaryValue(std::string_view tracking, std::string_view routing) {
    constexpr std::uint32_t kNineDigits = 1'000'000'000;
    const std::uint64_t upper =
        (RoutingValue(routing) * 10 + DigitValue(tracking[0])) * 5 + DigitValue(tracking[1]);
    LongNumber value{0, 0, upper >> 32, upper & 0xFFFFFFFF};
    MultiplyAdd(value, kNineDigits, DecimalNumberOf(tracking.substr(2, 9)));
    MultiplyAdd(value, kNineDigits, DecimalNumberOf(tracking.substr(11, 9)));
    return value;
}

std::uint32_t FrameCheckSequence(const LongNumber& value) {
    std::uint32_t sequence = kImbEmptySequence;
    for (std::size_t place = 0; place < kImbSequences.size(); ++place) {
        // The first of the thirteen bytes is the lowest of the number's highest place.
        const std::size_t byte = place + 3;
        sequence ^= kImbSequences[place][value[byte / 4] >> 8 * (3 - byte % 4) & 0xFF];
    }
    return sequence;
}

/** Codewords A to J, the remainders of one division after the other; two are found by one. The
 * frame check sequence's bit 10 goes into codeword A. */
Codewords MakeCodewords(LongNumber value, std::uint32_t frameCheckSequence) {
    constexpr std::uint32_t kPair = kImbCodewordRange * kImbCodewordRange;
    const std::uint32_t ij = DivideBy<kImbCodewordRange * kCodewordJRange>(value);
    const std::uint32_t gh = DivideBy<kPair>(value);
    // What is left has less than 64 bits.
    const std::uint64_t af = value[2] << 32 | value[3];
    const auto ef = static_cast<std::uint32_t>(af % kPair);
    const auto cd = static_cast<std::uint32_t>(af / kPair % kPair);
    const auto ab = static_cast<std::uint32_t>(af / kPair / kPair);

    const auto first = [](std::uint32_t pair) { return pair / kImbCodewordRange; };
    const auto second = [](std::uint32_t pair) { return pair % kImbCodewordRange; };
    const std::uint32_t added = frameCheckSequence & 0x400 ? kCodewordARange : 0;
    return {first(ab) % kCodewordARange + added,
            second(ab),
            first(cd),
            second(cd),
            first(ef),
            second(ef),
            first(gh),
            second(gh),
            ij / kCodewordJRange,
            ij % kCodewordJRange * 2};
}

/** The letters of eight bars from bits that say which reach up and which reach down. */
Word BarLetters(Word ascenders, Word descenders) {
    const Word up = kBitsAsBytes[ascenders & 0xFF];
    const Word down = kBitsAsBytes[descenders & 0xFF];
    return EightTimes('T') ^ up * ('T' ^ 'A') ^ down * ('T' ^ 'D') ^
           (up & down) * ('T' ^ 'A' ^ 'D' ^ 'F');
}

/** The characters of the codewords as bars. The frame check sequence's bits 0 to 9 turn characters
 *  into their complements. */
void WriteBars(const Codewords& codewords, std::uint32_t frameCheckSequence, char* bars) {
    std::array<std::uint32_t, kImbCharacterCount> characters;
    ImbBars first64;
    for (std::size_t index = 0; index < codewords.size(); ++index) {
        const std::uint32_t complement = frameCheckSequence >> index & 1 ? kCharacterBits : 0;
        const std::uint32_t character = kImbCharacters[codewords[index]] ^ complement;
        first64 |= kImbBarsOfLowBits[index][character & ((1 << kImbLowBits) - 1)];
        first64 |= kImbBarsOfHighBits[index][character >> kImbLowBits];
        characters[index] = character;
    }
    for (std::size_t bar = 0; bar < 64; bar += kWordSize) {
        const Word letters = BarLetters(first64.ascenders >> bar, first64.descenders >> bar);
        std::memcpy(bars + bar, &letters, kWordSize);
    }
    const auto isSet = [&](ImbBit place) { return characters[place.character] >> place.bit & 1; };
    const ImbBar& last = kImbBarMap.back();
    bars[64] = static_cast<char>(BarLetters(isSet(last.ascender), isSet(last.descender)) & 0xFF);
}

void Encode(std::string_view tracking, std::string_view routing, char* bars) {
    const LongNumber value = BinaryValue(tracking, routing);
    const std::uint32_t frameCheckSequence = FrameCheckSequence(value);
    WriteBars(MakeCodewords(value, frameCheckSequence), frameCheckSequence, bars);
    bars[kImbBarCount] = '\0';
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

bool PassedSelfTest() {
    if (!selfTestPassed) selfTestPassed = PassesSelfTest();
    return selfTestPassed;
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
    if (!PassedSelfTest()) return USPS_FSB_ENCODER_API_SELF_TEST_FAILED;
    if (tracking == nullptr) return USPS_FSB_ENCODER_API_TRACK_STRING_IS_NULL;
    if (routing == nullptr) return USPS_FSB_ENCODER_API_ROUTE_STRING_IS_NULL;
    if (bars == nullptr) return USPS_FSB_ENCODER_API_BAR_STRING_IS_NULL;

    return ImbEncode(Bounded(tracking, kImbTrackingLength), Bounded(routing, kImbLongestRouting),
                     bars);
}

ImbResult ImbEncode(std::string_view tracking, std::string_view routing, char* bars) {
    if (!PassedSelfTest()) return USPS_FSB_ENCODER_API_SELF_TEST_FAILED;
    if (const ImbResult result = CheckTracking(tracking)) return result;
    if (const ImbResult result = CheckRouting(routing)) return result;
    Encode(tracking, routing, bars);
    return USPS_FSB_ENCODER_API_SUCCESS;
}

ImbResult ImbEncodeCore(const char* tracking, const char* routing, char* bars) {
    const std::string_view routingDigits = Bounded(routing, kImbLongestRouting);
    if (!IsImbRoutingLength(routingDigits.size()))
        return USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH;
    Encode({tracking, kImbTrackingLength}, routingDigits, bars);
    return USPS_FSB_ENCODER_API_SUCCESS;
}

}  // namespace linewright
