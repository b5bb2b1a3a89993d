#include "tests/ImbDecoder.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <vector>

#include "imb/ImbBarMap.h"

namespace linewright {
namespace {

__extension__ typedef unsigned __int128 BinaryValue;  // NOLINT(modernize-use-using)

using Character = std::bitset<kImbBitsPerCharacter>;
using Characters = std::array<Character, kImbCharacterCount>;

Character Mirrored(const Character& character) {
    Character mirrored;
    for (std::size_t bit = 0; bit < character.size(); ++bit) {
        mirrored[character.size() - 1 - bit] = character[bit];
    }
    return mirrored;
}

/** The characters of one weight as the standard lists them: pairs of mirror images by the smaller
 *  one, then the palindromes from the largest down. */
std::vector<Character> CharactersOfWeight(std::size_t weight) {
    std::vector<Character> pairs;
    std::vector<Character> palindromes;
    for (unsigned long value = 0; value < 1UL << kImbBitsPerCharacter; ++value) {
        const Character character(value);
        const Character mirrored = Mirrored(character);
        if (character.count() != weight || mirrored.to_ulong() < value) continue;
        if (mirrored == character) {
            palindromes.insert(palindromes.begin(), character);
        } else {
            pairs.insert(pairs.end(), {character, mirrored});
        }
    }
    pairs.insert(pairs.end(), palindromes.begin(), palindromes.end());
    return pairs;
}

/** Codeword by character: 0 to 1286 for weight 5, 1287 to 1364 for weight 2. */
const std::map<unsigned long, unsigned>& CodewordByCharacter() {
    static const std::map<unsigned long, unsigned> codewords = [] {
        std::map<unsigned long, unsigned> result;
        for (const std::size_t weight : {5u, 2u}) {
            for (const Character& character : CharactersOfWeight(weight)) {
                result.emplace(character.to_ulong(), static_cast<unsigned>(result.size()));
            }
        }
        return result;
    }();
    return codewords;
}

std::optional<Characters> ReadCharacters(std::string_view bars) {
    if (bars.size() != kImbBarCount) return std::nullopt;
    Characters characters;
    for (std::size_t index = 0; index < bars.size(); ++index) {
        const char letter = bars[index];
        if (std::string_view("ADFT").find(letter) == std::string_view::npos) return std::nullopt;
        const ImbBar& bar = kImbBarMap[index];
        characters[bar.ascender.character][bar.ascender.bit] = letter == 'A' || letter == 'F';
        characters[bar.descender.character][bar.descender.bit] = letter == 'D' || letter == 'F';
    }
    return characters;
}

/** Remainder of the 102 bits, the first 11 of them inverted, by the generator polynomial. */
unsigned FrameCheckSequence(BinaryValue value) {
    BinaryValue dividend = (value ^ BinaryValue{0x7FF} << 91) << 11;
    for (int bit = 112; bit >= 11; --bit) {
        if (dividend >> bit & 1) dividend ^= BinaryValue{0xF35} << (bit - 11);
    }
    return static_cast<unsigned>(dividend);
}

std::string Digits(std::uint64_t value, std::size_t length) {
    std::string digits(length, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, value /= 10) {
        *digit = static_cast<char>('0' + value % 10);
    }
    return digits;
}

std::optional<std::string> Routing(std::uint64_t value) {
    if (value == 0) return "";
    value -= 1;
    for (const std::size_t length : {5u, 9u, 11u}) {
        std::uint64_t codes = 1;
        for (std::size_t digit = 0; digit < length; ++digit) codes *= 10;
        if (value < codes) return Digits(value, length);
        value -= codes;
    }
    return std::nullopt;
}

}  // namespace

std::optional<ImbCode> DecodeImb(std::string_view bars) {
    const std::optional<Characters> characters = ReadCharacters(bars);
    if (!characters) return std::nullopt;

    unsigned sequence = 0;
    std::array<unsigned, kImbCharacterCount> codewords{};
    for (std::size_t index = 0; index < codewords.size(); ++index) {
        Character character = (*characters)[index];
        if (character.count() > 6) {
            character.flip();
            sequence |= 1u << index;
        }
        const auto found = CodewordByCharacter().find(character.to_ulong());
        if (found == CodewordByCharacter().end()) return std::nullopt;
        codewords[index] = found->second;
    }
    if (codewords[0] >= 659) {
        codewords[0] -= 659;
        sequence |= 1u << 10;
    }
    if (codewords[0] >= 659 || codewords[9] % 2 != 0 || codewords[9] / 2 >= 636) {
        return std::nullopt;
    }

    BinaryValue value = 0;
    for (std::size_t index = 0; index < 9; ++index) value = value * 1365 + codewords[index];
    value = value * 636 + codewords[9] / 2;
    if (value >> 102 != 0 || FrameCheckSequence(value) != sequence) return std::nullopt;

    constexpr std::uint64_t kTail = 1'000'000'000'000'000'000;  // tracking digits 3 to 20
    const std::string tail = Digits(static_cast<std::uint64_t>(value % kTail), 18);
    const auto head = static_cast<std::uint64_t>(value / kTail);
    const std::string start = Digits(head / 5 % 10, 1) + Digits(head % 5, 1);
    const std::optional<std::string> routing = Routing(head / 50);
    if (!routing) return std::nullopt;
    return ImbCode{start + tail, *routing};
}

}  // namespace linewright
