#include "cli/FontText.h"

#include <array>

#include "cli/Utf8.h"

namespace linewright {

namespace {

/** Windows-1252, 0x80 to 0x9F; the five bytes without a character have a private-use one. */
constexpr std::array<char32_t, 32> kFrom0x80{
    0x20AC, 0xF081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xF08D, 0x017D, 0xF08F,  // 0x88
    0xF090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xF09D, 0x017E, 0x0178,  // 0x98
};

char32_t CharacterOf(unsigned char byte) {
    if (byte < 0x20) return 0x2400U + byte;
    if (byte == 0x7F) return 0x2421;
    if (byte < 0x80 || byte >= 0xA0) return byte;
    return kFrom0x80[byte - 0x80U];
}

}  // namespace

std::string FontText(std::string_view fontString) {
    std::string text;
    for (const char byte : fontString) {
        AppendUtf8(text, CharacterOf(static_cast<unsigned char>(byte)));
    }
    return text;
}

}  // namespace linewright
