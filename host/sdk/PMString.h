#pragma once

#include "BaseType.h"

/**
 * The host's string: Unicode text, and whether it is a key that the current locale's string table
 * translates. Positions and counts are code points. A key without an entry stays as it is, and
 * stays a key; a translated one is plain text from then on, as an empty string is from the start.
 */
class PUBLIC_DECL PMString {
  public:
    enum TranslateAction { kDontTranslateDuringCall, kTranslateDuringCall };
    /** 8-bit text: each byte is the code point of its value, so all 256 go through unchanged. */
    enum StringEncoding { kEncodingLatin1 };

    PMString();
    /** As SetKey. */
    explicit PMString(const char* key, TranslateAction action = kTranslateDuringCall);
    PMString(const PMString& other);
    PMString& operator=(const PMString& other);
    ~PMString();

    void Clear();
    bool16 IsEmpty() const;
    int32 CharCount() const;
    /** The code point at a position from 0 to CharCount() - 1. */
    UTF32TextChar GetWChar(int32 position) const;

    /** Makes this a translatable key (7-bit text), translated at once if asked for. */
    void SetKey(const char* key, TranslateAction action = kTranslateDuringCall);
    /** Makes this plain, untranslatable text from NUL-terminated 8-bit text. */
    void SetCString(const char* text);
    /** Makes this plain, untranslatable text from `length` bytes. */
    void SetString(const char* bytes, int32 length, StringEncoding encoding = kEncodingLatin1);
    /** Writes at most `capacity` bytes without a terminator and returns how many; a code point
     *  above 255 is written as "?". */
    int32 GetString(char* buffer, int32 capacity, StringEncoding encoding = kEncodingLatin1) const;

    void SetTranslatable(bool16 translatable);
    bool16 IsTranslatable() const;
    /** Replaces a key by its text in the current locale; plain text stays. */
    void Translate();

    void Append(const PMString& text);
    void Append(const char* text);
    void AppendW(UTF32TextChar character);
    void AppendNumber(int32 number);
    /** Makes this the plain decimal text of a number. */
    void AsNumber(int32 number);

    /** The first position of `text` at or after `from`; -1 when there is none. */
    int32 IndexOfString(const PMString& text, int32 from = 0) const;
    void Insert(const PMString& text, int32 position);
    void Remove(int32 position, int32 count);

    /** Code point by code point; whether the strings are keys does not count. */
    bool operator==(const PMString& other) const;

  private:
    struct Text;
    Text* fText;
};
