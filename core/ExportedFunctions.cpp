#include "core/ExportedFunctions.h"

#include <algorithm>
#include <cstring>

char* LinewrightStrrev(char* text) {
    if (!text) return nullptr;
    const std::size_t length = std::strlen(text);
    if (length > 2) std::reverse(text, text + length);
    return text;
}

char* LinewrightStrupr(char* text) {
    if (!text) return nullptr;
    for (char* c = text; *c; ++c)
        if (*c >= 'a' && *c <= 'z') *c = static_cast<char>(*c - 'a' + 'A');
    return text;
}
