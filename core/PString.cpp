#include "core/PString.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>

namespace linewright {

namespace {

std::string_view CStringView(const char* text) {
    const void* const end = std::memchr(text, 0, kMaxPStringLength);
    if (!end) return {text, kMaxPStringLength};
    return {text, static_cast<std::size_t>(static_cast<const char*>(end) - text)};
}

std::string_view UpToNul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

void Append(PString& dest, std::string_view text) {
    text = text.substr(0, kMaxPStringLength - dest.length);
    std::copy(text.begin(), text.end(), dest.text + dest.length);
    dest.length = static_cast<uint8>(dest.length + text.size());
}

int32 Compare(std::string_view a, std::string_view b) {
    const int order = UpToNul(a).compare(UpToNul(b));
    return (order > 0) - (order < 0);
}

}  // namespace

void PStringFromCString(PString* dest, const char* src) {
    if (dest && src) SetPString(*dest, CStringView(src));
}

void PStringFromCStringInPlace(char* text) {
    const std::size_t length = CStringView(text).size();
    std::memmove(text + 1, text, length);
    text[0] = static_cast<char>(length);
}

void PStringToCStringInPlace(char* text) {
    const auto length = static_cast<uint8>(text[0]);
    std::memmove(text, text + 1, length);
    text[length] = 0;
}

void SetPString(PString& dest, std::string_view text) {
    dest.length = 0;
    Append(dest, text);
}

void CopyPString(PString& dest, const PString& src) {
    std::memmove(&dest, &src, src.length + std::size_t{1});
}

void AppendPString(PString& dest, const PString& src) {
    Append(dest, src.View());
}

void AppendCStringToPString(PString* dest, const char* src) {
    if (dest && src) Append(*dest, CStringView(src));
}

int32 ComparePStrings(const PString& a, const PString& b) {
    return Compare(a.View(), b.View());
}

int32 ComparePStringToCString(const char* a, const PString& b) {
    return Compare(CStringView(a), b.View());
}

void NumberToPString(int32 value, PString& dest) {
    const auto end = std::to_chars(dest.text, dest.text + kMaxPStringLength, value).ptr;
    dest.length = static_cast<uint8>(end - dest.text);
}

void PStringToNumber(const PString& src, uint32& out) {
    std::string_view text = src.View();
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    int64 value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') break;
        value = std::min<int64>(value * 10 + (c - '0'), int64{1} << 31);
    }
    value = negative ? -value : std::min<int64>(value, std::numeric_limits<int32>::max());
    out = static_cast<uint32>(value);
}

void CopyBytes(void* dest, const void* src, uint32 count) {
    if (count > 0) std::memcpy(dest, src, count);
}

void CopyBytesFrom(const void* src, void* dest, uint32 count) {
    CopyBytes(dest, src, count);
}

void ZeroBytes(void* area, uint32 count) {
    if (count > 0) std::memset(area, 0, count);
}

}  // namespace linewright
