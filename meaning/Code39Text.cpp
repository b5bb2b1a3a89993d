#include "meaning/Code39Text.h"

#include "standards/CheckDigits.h"
#include "standards/Code39Patterns.h"

namespace linewright::meaning {

namespace {

/** The row of 32 that a character lies in has a shift character for each stretch of letters. */
std::string PairOf(unsigned char byte) {
    const auto pair = [](char shift, int letter) {
        return std::string{shift, static_cast<char>('A' + letter)};
    };
    if (byte == 0) return "%U";
    if (byte <= 26) return pair('$', byte - 1);
    if (byte <= 31) return pair('%', byte - 27);
    if (byte == ' ' || byte == '-' || byte == '.') return {static_cast<char>(byte)};
    if (byte >= '0' && byte <= '9') return {static_cast<char>(byte)};
    if (byte >= 'A' && byte <= 'Z') return {static_cast<char>(byte)};
    if (byte <= ':') return pair('/', byte - '!');
    if (byte <= '?') return pair('%', byte - ';' + 5);
    if (byte == '@') return "%V";
    if (byte <= '_') return pair('%', byte - '[' + 10);
    if (byte == '`') return "%W";
    if (byte <= 'z') return pair('+', byte - 'a');
    if (byte <= 127) return pair('%', byte - '{' + 15);
    return "";
}

}  // namespace

char Modulo43(std::string_view text) {
    std::size_t sum = 0;
    for (const char character : text) sum += Code39Value(character).value_or(0);
    return kCode39Characters[sum % kCode39Characters.size()];
}

char Modulo10FromLeft(std::string_view digits) {
    std::size_t sum = 0;
    for (std::size_t place = 0; place < digits.size(); ++place) {
        const auto digit = static_cast<std::size_t>(digits[place] - '0');
        const std::size_t counted = place % 2 == 0 ? 2 * digit : digit;
        sum += counted / 10 + counted % 10;
    }
    return Modulo10Complement(sum);
}

std::string FullAscii(std::string_view text) {
    std::string pairs;
    for (const char character : text) pairs += PairOf(static_cast<unsigned char>(character));
    return pairs;
}

}  // namespace linewright::meaning
