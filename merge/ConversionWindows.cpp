#include <windows.h>

#include <algorithm>

#include "merge/Encoding.h"
#include "text/Utf16.h"

namespace linewright {

namespace {

constexpr UINT kMacRomanPage = 10000;
constexpr UINT kWindows1252Page = 1252;

UINT PageOf(Encoding encoding) {
    return encoding == Encoding::kMacRoman ? kMacRomanPage : kWindows1252Page;
}

bool IsHighSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xDC00;
}

/** Takes whole characters off the bytes; false where they begin with half of a pair. */
bool TakeUnits(std::string_view& bytes, bool isBigEndian, std::u16string& units) {
    const auto unitAt = [&bytes, isBigEndian](std::size_t place) {
        const auto first = static_cast<unsigned char>(bytes[place]);
        const auto second = static_cast<unsigned char>(bytes[place + 1]);
        return static_cast<char16_t>(isBigEndian ? first << 8 | second : second << 8 | first);
    };
    std::size_t place = 0;
    bool isValid = true;
    while (bytes.size() - place >= 2) {
        const char16_t unit = unitAt(place);
        const bool isPair = IsHighSurrogate(unit);
        if (isPair && bytes.size() - place < 4) break;
        isValid = !IsLowSurrogate(unit) && (!isPair || IsLowSurrogate(unitAt(place + 2)));
        if (!isValid) break;
        units += unit;
        if (isPair) units += unitAt(place + 2);
        place += isPair ? 4 : 2;
    }
    bytes.remove_prefix(place);
    return isValid;
}

/** Takes the bytes of a code page; false where they begin with one that means nothing. */
bool TakePage(std::string_view& bytes, UINT page, std::u16string& units) {
    std::wstring wide(bytes.size(), L'\0');
    const int count = MultiByteToWideChar(page, 0, bytes.data(), static_cast<int>(bytes.size()),
                                          wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(std::max(count, 0)));
    // The system has control characters for the bytes without a character.
    const auto invalid = std::find_if(wide.begin(), wide.end(),
                                      [](wchar_t unit) { return unit >= 0x80 && unit <= 0x9F; });
    units.append(wide.begin(), invalid);
    bytes.remove_prefix(static_cast<std::size_t>(invalid - wide.begin()));
    return invalid == wide.end();
}

/** What is written in UTF-8 up to its last whole character. */
std::string_view WholeCharacters(std::string_view utf8) {
    std::size_t end = utf8.size();
    while (end > 0 && (static_cast<unsigned char>(utf8[end - 1]) & 0xC0) == 0x80) --end;
    if (end == 0) return utf8;
    const auto lead = static_cast<unsigned char>(utf8[end - 1]);
    const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    return end - 1 + length <= utf8.size() ? utf8 : utf8.substr(0, end - 1);
}

bool AppendInPage(const std::u16string& units, UINT page, std::string& text) {
    const std::wstring wide(units.begin(), units.end());
    const std::size_t begin = text.size();
    text.resize(begin + wide.size());
    BOOL isOther = FALSE;
    const int count =
        WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, wide.data(), static_cast<int>(wide.size()),
                            text.data() + begin, static_cast<int>(wide.size()), nullptr, &isOther);
    text.resize(begin + static_cast<std::size_t>(std::max(count, 0)));
    // A control character takes a byte that means nothing.
    const bool hasControl = std::any_of(wide.begin(), wide.end(),
                                        [](wchar_t unit) { return unit >= 0x80 && unit <= 0x9F; });
    return !isOther && !hasControl;
}

}  // namespace

Conversion::Conversion(Encoding fromEncoding, Encoding toEncoding)
    : from(fromEncoding), to(toEncoding) {}

Conversion::~Conversion() = default;

bool Conversion::Convert(std::string_view& bytes, std::string& text) {
    if (bytes.empty()) return true;
    if (to == Encoding::kUtf8) {
        std::u16string units;
        const bool isValid = HasAllCharacters(from)
                                 ? TakeUnits(bytes, from == Encoding::kUtf16BigEndian, units)
                                 : TakePage(bytes, PageOf(from), units);
        text += Utf8FromUtf16(units);
        return isValid;
    }
    const std::string_view whole = WholeCharacters(bytes);
    bytes.remove_prefix(whole.size());
    const std::u16string units = Utf16FromUtf8(whole);
    if (!HasAllCharacters(to)) return AppendInPage(units, PageOf(to), text);
    for (const char16_t unit : units) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        text += to == Encoding::kUtf16BigEndian ? high : low;
        text += to == Encoding::kUtf16BigEndian ? low : high;
    }
    return true;
}

}  // namespace linewright
