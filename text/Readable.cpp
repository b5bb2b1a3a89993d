#include "text/Readable.h"

#include "text/ControlPictures.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

/** U+0080 to U+009F: control characters without a picture. */
bool IsC1Control(char32_t character) {
    return character >= 0x80 && character < 0xA0;
}

}  // namespace

std::string Readable(std::string_view bytes) {
    std::string text;
    for (const char32_t character : CharactersFromUtf8(bytes)) {
        AppendUtf8(text,
                   IsC1Control(character) ? kReplacementCharacter : ControlPicture(character));
    }
    return text;
}

}  // namespace linewright
