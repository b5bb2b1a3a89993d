#include "imb/ImbDecode.h"

#include <array>
#include <bit>
#include <cstdint>

#include "imb/ImbTables.h"

namespace linewright {

namespace {

constexpr std::uint32_t kCodewordARange = 659;
constexpr std::uint32_t kCodewordJRange = 636;
constexpr std::uint32_t kAllBits = (1U << kImbBitsPerCharacter) - 1;
/** Characters have five or two bits set; more are a complement's. */
constexpr int kMostBits = 5;

constexpr std::uint16_t kNone = 0xFFFF;
constexpr auto kCodewords = [] {
    std::array<std::uint16_t, kAllBits + 1> codewords{};
    codewords.fill(kNone);
    for (std::size_t place = 0; place < kImbCharacters.size(); ++place) {
        codewords[kImbCharacters[place]] = static_cast<std::uint16_t>(place);
    }
    return codewords;
}();

/** The characters' bits, as the bars say them; false for other letters. */
bool ReadCharacters(std::string_view bars,
                    std::array<std::uint32_t, kImbCharacterCount>& characters) {
    for (std::size_t place = 0; place < bars.size(); ++place) {
        const char letter = bars[place];
        const bool isAscender = letter == 'A' || letter == 'F';
        const bool isDescender = letter == 'D' || letter == 'F';
        if (!isAscender && !isDescender && letter != 'T') return false;
        const ImbBar& bar = kImbBarMap[place];
        if (isAscender) characters[bar.ascender.character] |= 1U << bar.ascender.bit;
        if (isDescender) characters[bar.descender.character] |= 1U << bar.descender.bit;
    }
    return true;
}

void MultiplyAdd(ImbBinaryValue& value, std::uint32_t factor, std::uint32_t summand) {
    std::uint32_t carry = summand;
    for (std::size_t place = value.size(); place-- > 0;) {
        carry += value[place] * factor;
        value[place] = static_cast<std::uint8_t>(carry & 0xFF);
        carry >>= 8;
    }
}

/** Divides in place and returns the remainder. */
std::uint32_t DivideBy(ImbBinaryValue& value, std::uint32_t divisor) {
    std::uint32_t remainder = 0;
    for (std::uint8_t& place : value) {
        remainder = remainder << 8 | place;
        place = static_cast<std::uint8_t>(remainder / divisor);
        remainder %= divisor;
    }
    return remainder;
}

std::string Digits(std::uint64_t number, std::size_t length) {
    std::string digits(length, '0');
    for (std::size_t place = length; place-- > 0; number /= 10) {
        digits[place] = static_cast<char>('0' + number % 10);
    }
    return digits;
}

/** The encoder numbers the routing codes through: none, then those of 5, of 9 and of 11 digits. */
std::optional<std::string> RoutingOf(std::uint64_t number) {
    if (number == 0) return "";
    --number;
    std::uint64_t codes = 100'000;
    for (const std::size_t length : {std::size_t{5}, std::size_t{9}, kImbLongestRouting}) {
        if (number < codes) return Digits(number, length);
        number -= codes;
        codes = length == 5 ? 1'000'000'000 : 100'000'000'000;
    }
    return std::nullopt;
}

}  // namespace

std::optional<ImbDigits> ImbDecode(std::string_view bars) {
    std::array<std::uint32_t, kImbCharacterCount> characters{};
    if (bars.size() != kImbBarCount || !ReadCharacters(bars, characters)) return std::nullopt;
    std::uint32_t sequence = 0;
    std::array<std::uint32_t, kImbCharacterCount> codewords{};
    for (std::size_t place = 0; place < characters.size(); ++place) {
        std::uint32_t character = characters[place];
        if (std::popcount(character) > kMostBits) {
            character ^= kAllBits;
            sequence |= 1U << place;
        }
        if (kCodewords[character] == kNone) return std::nullopt;
        codewords[place] = kCodewords[character];
    }
    if (codewords.front() >= kCodewordARange) {
        codewords.front() -= kCodewordARange;
        sequence |= 1U << kImbCharacterCount;
    }
    if (codewords.front() >= kCodewordARange || codewords.back() % 2 != 0 ||
        codewords.back() / 2 >= kCodewordJRange) {
        return std::nullopt;
    }
    ImbBinaryValue value{};
    for (std::size_t place = 0; place + 1 < codewords.size(); ++place) {
        MultiplyAdd(value, kImbCodewordRange, codewords[place]);
    }
    MultiplyAdd(value, kCodewordJRange, codewords.back() / 2);
    if (ImbFrameCheckSequence(value) != sequence) return std::nullopt;
    ImbDigits digits;
    digits.tracking.resize(kImbTrackingLength);
    for (std::size_t place = kImbTrackingLength; place-- > 0;) {
        const std::uint32_t base = place == 1 ? 5 : 10;
        digits.tracking[place] = static_cast<char>('0' + DivideBy(value, base));
    }
    std::uint64_t routing = 0;
    for (const std::uint8_t place : value) routing = routing << 8 | place;
    auto found = RoutingOf(routing);
    if (!found) return std::nullopt;
    digits.routing = std::move(*found);
    return digits;
}

}  // namespace linewright
