#pragma once

#include <string_view>

#include "BaseType.h"

namespace linewright {

/** A length-prefixed string of at most 255 characters in a 256-byte area, without terminator.
 *  Whatever makes it grow stops silently at 255. */
struct PString {
    uint8 length;
    char text[255];

    std::string_view View() const { return {text, length}; }
};
static_assert(sizeof(PString) == 256);

/** The most characters that a PString holds. */
constexpr uint32 kMaxPStringLength = 255;

/** Replaces `dest` by at most 255 characters of a C string; nothing when either is absent. */
void PStringFromCString(PString* dest, const char* src);

/** Replaces `dest` by the first 255 characters of a text that is no part of it. */
void SetPString(PString& dest, std::string_view text);
/** Copies the length and that many characters. */
void CopyPString(PString& dest, const PString& src);

/** Compares both as C strings, so up to a NUL if they hold one, by unsigned bytes: -1, 0 or 1. */
int32 ComparePStrings(const PString& a, const PString& b);

/** Copies `count` bytes between areas that do not overlap; nothing for 0. */
void CopyBytes(void* dest, const void* src, uint32 count);

// Service: no caller of our own.

/** Turns the C string in a 256-byte area into a PString of its first 255 characters at most. */
void PStringFromCStringInPlace(char* text);
/** Turns the PString in a 256-byte area into a C string. */
void PStringToCStringInPlace(char* text);
void AppendPString(PString& dest, const PString& src);
/** Appends at most 255 characters of a C string; nothing when either is absent. */
void AppendCStringToPString(PString* dest, const char* src);
/** ComparePStrings with a C string of which 255 characters count. */
int32 ComparePStringToCString(const char* a, const PString& b);
/** Writes the decimal text of a number, with a minus sign for negative ones. */
void NumberToPString(int32 value, PString& dest);
/** Reads a decimal number as atol does where long has 32 bits: white space, a sign, digits; values
 *  out of range give the nearest one, text without digits gives 0. */
void PStringToNumber(const PString& src, uint32& out);
/** CopyBytes with the source first. */
void CopyBytesFrom(const void* src, void* dest, uint32 count);
void ZeroBytes(void* area, uint32 count);

}  // namespace linewright
