#include "core/Formatting.h"

#include <cstdarg>
#include <cstdio>

namespace linewright {

int32 FormatInto(char* buffer, const char* format, ...) {
    std::va_list values;
    va_start(values, format);
    const int written = std::vsprintf(buffer, format, values);
    va_end(values);
    return written < 0 ? -1 : written;
}

void FormatAlternatives(const int32* list, int32 count, PMString& out) {
    out.Clear();
    for (int32 i = 0; i < count; ++i) {
        if (i == count - 1) {
            out.Append(" or ");
        } else if (i > 0) {
            out.Append(", ");
        }
        out.AppendNumber(list[i]);
    }
}

}  // namespace linewright
