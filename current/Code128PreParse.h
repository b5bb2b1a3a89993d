#pragma once

#include <string_view>

#include "core/FixedText.h"

namespace linewright {

/** The bytes that stand for Code 128 characters without a character of their own. */
constexpr unsigned char kFnc1Byte = 202;
constexpr bool IsMarkerByte(unsigned char byte) {
    return (byte >= 195 && byte <= 198) || byte == 200 || (byte >= kFnc1Byte && byte <= 218);
}

/** Whether data begins with "(", or holds "~m" and two digits, or "~" and three digits. */
bool HasEscapes(std::string_view data);

/**
 * Appends data with its escapes replaced:
 * - Data that begins with "(" is a GS1 element string if every "(" is followed by 2 to 4 digits,
 * its application identifier, and ")". FNC1 goes in front, the parentheses of the identifiers go,
 * and FNC1 separates a value whose length is not predefined (GS1 General Specifications, 7.8.5)
 * from the next element.
 * - "~" and three digits up to 255 is the byte of that value.
 * - "~m" and two digits NN is the GS1 check digit of the digits among the last NN characters in
 *   front of it in the result, marker bytes not counted; "0" when there is no digit.
 * Everything else stays as it is.
 *
 * @param parsed  empty; needs room for as many bytes as the data has
 */
void Code128PreParse(std::string_view data, TextArea& parsed);

}  // namespace linewright
