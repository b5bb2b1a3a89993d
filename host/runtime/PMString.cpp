#include "PMString.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

#include "host/runtime/Make.h"
#include "host/runtime/TextLookUp.h"

struct PMString::Text {
    std::u32string characters;
    bool16 isTranslatable = kFalse;
};

namespace {

std::size_t Clamp(int32 position, std::size_t size) {
    return position < 0 ? 0 : std::min(static_cast<std::size_t>(position), size);
}

// What could be thrown here is that there is no memory. Since nothing may be thrown to a plug-in,
// the process ends then: these are noexcept, and strings grow by them only.

void Assign(std::u32string& text, std::u32string_view replacement) noexcept {
    text = replacement;
}

void Extend(std::u32string& text, std::u32string_view end) noexcept {
    text.append(end);
}

void InsertAt(std::u32string& text, std::size_t position, std::u32string_view inserted) noexcept {
    std::u32string result = text.substr(0, position);
    result.append(inserted).append(text, position);
    text.swap(result);
}

std::u32string FromBytes(const char* bytes, std::size_t length) noexcept {
    std::u32string text(length, U'\0');
    for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<unsigned char>(bytes[i]);
    return text;
}

std::u32string FromCString(const char* text) noexcept {
    const std::string_view view = text ? text : "";
    return FromBytes(view.data(), view.size());
}

std::u32string Decimal(int32 number) noexcept {
    char digits[12];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    return FromBytes(digits, static_cast<std::size_t>(end.ptr - digits));
}

}  // namespace

PMString::PMString() : fText(host::Make<Text>()) {}

PMString::PMString(const char* key, TranslateAction action) : PMString() {
    SetKey(key, action);
}

PMString::PMString(const PMString& other) : PMString() {
    *this = other;
}

PMString& PMString::operator=(const PMString& other) {
    if (this == &other) return *this;
    Assign(fText->characters, other.fText->characters);
    fText->isTranslatable = other.fText->isTranslatable;
    return *this;
}

PMString::~PMString() {
    delete fText;
}

void PMString::Clear() {
    fText->characters.clear();
    fText->isTranslatable = kFalse;
}

bool16 PMString::IsEmpty() const {
    return fText->characters.empty() ? kTrue : kFalse;
}

int32 PMString::CharCount() const {
    return static_cast<int32>(fText->characters.size());
}

UTF32TextChar PMString::GetWChar(int32 position) const {
    return fText->characters[static_cast<std::size_t>(position)];
}

void PMString::SetKey(const char* key, TranslateAction action) {
    fText->characters = FromCString(key);
    fText->isTranslatable = kTrue;
    if (action == kTranslateDuringCall) Translate();
}

void PMString::SetCString(const char* text) {
    fText->characters = FromCString(text);
    fText->isTranslatable = kFalse;
}

void PMString::SetString(const char* bytes, int32 length, StringEncoding) {
    fText->characters =
        FromBytes(bytes, bytes && length > 0 ? static_cast<std::size_t>(length) : 0);
    fText->isTranslatable = kFalse;
}

int32 PMString::GetString(char* buffer, int32 capacity, StringEncoding) const {
    const int32 count = std::min(capacity, CharCount());
    for (int32 i = 0; i < count; ++i) {
        const UTF32TextChar character = GetWChar(i);
        buffer[i] = character > 255 ? '?' : static_cast<char>(character);
    }
    return std::max(count, 0);
}

void PMString::SetTranslatable(bool16 translatable) {
    fText->isTranslatable = translatable;
}

bool16 PMString::IsTranslatable() const {
    return fText->isTranslatable;
}

void PMString::Translate() {
    if (!fText->isTranslatable) return;
    const std::u32string* const text = host::FindText(fText->characters);
    if (!text) return;
    Assign(fText->characters, *text);
    fText->isTranslatable = kFalse;
}

void PMString::Append(const PMString& text) {
    Insert(text, CharCount());
}

void PMString::Append(const char* text) {
    Extend(fText->characters, FromCString(text));
}

void PMString::AppendW(UTF32TextChar character) {
    const char32_t value = character;
    Extend(fText->characters, {&value, 1});
}

void PMString::AppendNumber(int32 number) {
    Extend(fText->characters, Decimal(number));
}

void PMString::AsNumber(int32 number) {
    fText->characters = Decimal(number);
    fText->isTranslatable = kFalse;
}

int32 PMString::IndexOfString(const PMString& text, int32 from) const {
    const std::size_t start = from < 0 ? 0 : static_cast<std::size_t>(from);
    const std::size_t found = fText->characters.find(text.fText->characters, start);
    return found == std::u32string::npos ? -1 : static_cast<int32>(found);
}

void PMString::Insert(const PMString& text, int32 position) {
    std::u32string& characters = fText->characters;
    InsertAt(characters, Clamp(position, characters.size()), text.fText->characters);
}

void PMString::Remove(int32 position, int32 count) {
    if (count <= 0) return;
    fText->characters.erase(Clamp(position, fText->characters.size()),
                            static_cast<std::size_t>(count));
}

bool PMString::operator==(const PMString& other) const {
    return fText->characters == other.fText->characters;
}
