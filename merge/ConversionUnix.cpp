#include <iconv.h>

#include <cerrno>

#include "merge/Encoding.h"
#include "merge/Failure.h"

namespace linewright {

namespace {

const char* SystemNameOf(Encoding encoding) {
    switch (encoding) {
        case Encoding::kUtf8: return "UTF-8";
        case Encoding::kUtf16LittleEndian: return "UTF-16LE";
        case Encoding::kUtf16BigEndian: return "UTF-16BE";
        case Encoding::kWindows1252: return "CP1252";
        case Encoding::kMacRoman: return "MACINTOSH";
    }
    return "";
}

}  // namespace

Conversion::Conversion(Encoding fromEncoding, Encoding toEncoding)
    : from(fromEncoding), to(toEncoding) {
    state = iconv_open(SystemNameOf(to), SystemNameOf(from));
    if (state == reinterpret_cast<iconv_t>(-1)) {
        throw Failure("the system does not know the encoding " +
                      std::string(NameOf(from == Encoding::kUtf8 ? to : from)));
    }
}

Conversion::~Conversion() {
    iconv_close(state);
}

bool Conversion::Convert(std::string_view& bytes, std::string& text) {
    // No character has more than three times the bytes in another of these encodings.
    const std::size_t begin = text.size();
    text.resize(begin + 3 * bytes.size());
    char* read = const_cast<char*>(bytes.data());
    char* written = text.data() + begin;
    std::size_t toRead = bytes.size();
    std::size_t room = text.size() - begin;
    const std::size_t result = iconv(state, &read, &toRead, &written, &room);
    const bool isConverted = result != static_cast<std::size_t>(-1) || errno == EINVAL;
    bytes.remove_prefix(bytes.size() - toRead);
    text.resize(text.size() - room);
    return isConverted;
}

}  // namespace linewright
