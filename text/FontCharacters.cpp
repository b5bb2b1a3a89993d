#include "text/FontCharacters.h"

#include <array>

#include "text/ControlPictures.h"

namespace linewright {

namespace {

/** Windows-1252, 0x80 to 0x9F; the five bytes without a character have a private-use one. */
constexpr std::array<char32_t, 32> kFrom0x80{
    0x20AC, 0xF081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xF08D, 0x017D, 0xF08F,  // 0x88
    0xF090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xF09D, 0x017E, 0x0178,  // 0x98
};

constexpr char32_t kPrivateUse = 0xF000;

bool IsPrintableAscii(unsigned char byte) {
    return byte >= 0x20 && byte < 0x7F;
}

}  // namespace

char32_t FontCharacter(unsigned char byte) {
    return byte < 0x80 || byte >= 0xA0 ? ControlPicture(byte) : kFrom0x80[byte - 0x80U];
}

std::optional<unsigned char> ByteOfFontCharacter(char32_t character) {
    for (unsigned value = 0; value < 256; ++value) {
        const auto byte = static_cast<unsigned char>(value);
        if (character == FontCharacter(byte) || (byte >= 0x80 && character == byte) ||
            (!IsPrintableAscii(byte) && character == kPrivateUse + byte)) {
            return byte;
        }
    }
    return std::nullopt;
}

}  // namespace linewright
