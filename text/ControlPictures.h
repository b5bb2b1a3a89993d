#pragma once

namespace linewright {

/** The picture (U+2400 to U+241F, U+2421) of one of the control characters 0 to 31 and 127; any
 *  other character itself. */
constexpr char32_t ControlPicture(char32_t character) {
    if (character < 0x20) return 0x2400 + character;
    return character == 0x7F ? 0x2421 : character;
}

}  // namespace linewright
