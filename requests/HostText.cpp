#include "requests/HostText.h"

#include "cli/Utf8.h"

namespace linewright {

std::string Utf8FromHost(const PMString& text) {
    std::string utf8;
    for (int32 i = 0; i < text.CharCount(); ++i) AppendUtf8(utf8, text.GetWChar(i));
    return utf8;
}

}  // namespace linewright
