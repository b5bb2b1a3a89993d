#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace linewright::meaning {

/** The text of a Code 128 symbol as a reader puts it together, character by character
 *  (ISO/IEC 15417, 4.3.4): FNC1 in front says that it is GS1's, any other is GS. */
class Code128Text {
  public:
    void Add(char character);
    /** A pair of set C, which FNC4 does not touch. */
    void AddPair(int pair);
    void AddFnc1();
    /** One alone moves the next character to the upper 128, two all that follow. */
    void AddFnc4();
    /** FNC2 and FNC3 say nothing. */
    void AddOther() { isBegun = true; }

    std::string text;
    bool isGs1 = false;

  private:
    bool isBegun = false;
    bool isUpper = false;
    bool isNextOther = false;
};

/** The characters that data of the current Code 128 stands for, function characters as their bytes:
 *  its escapes and a GS1 element string taken apart. */
std::string Code128Characters(std::string_view data);

/** The text of a GS1 element string in brackets with a separator between any two elements; none for
 *  other data. */
std::optional<std::string> SeparatedElements(std::string_view data);

/** The text of such characters. `hasDelete`: with DEL, which the encoder leaves out. */
Code128Text TextOfCharacters(std::string_view characters, bool hasDelete);

/** Whether DEL or FNC4 stand behind a control character, and nothing else there is that a symbol
 *  may say otherwise. */
bool HasFunctionBehindControl(std::string_view characters);

/** The length of the escape that data begins with, "~202" or "~m13"; 0 for none. */
std::size_t EscapeLength(std::string_view data);

}  // namespace linewright::meaning
