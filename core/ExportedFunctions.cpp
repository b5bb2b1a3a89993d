#include "core/ExportedFunctions.h"

#include <algorithm>
#include <cstring>

#include "core/ScratchRing.h"

char* LinewrightStrrev(char* text) {
    if (!text) return nullptr;
    const std::size_t length = std::strlen(text);
    if (length > 2) std::reverse(text, text + length);
    return text;
}

char* LinewrightStrupr(char* text) {
    if (!text) return nullptr;
    for (char* c = text; *c; ++c) {
        const char character = *linewright::MidString(c, 1, 1);
        if (character >= 'a' && character <= 'z') *c = static_cast<char>(character - 'a' + 'A');
    }
    return text;
}
