#include "text/FileNamePart.h"

#include "text/Readable.h"

namespace linewright {

std::string FileNamePart(std::string_view text) {
    std::string part = Readable(text);
    for (char& byte : part) {
        if (std::string_view("/\\:*?\"<>|").find(byte) != std::string_view::npos) byte = '_';
    }
    return part;
}

}  // namespace linewright
