#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace linewright {

/** What the characters of a file are written in. */
enum class Encoding { kUtf8, kUtf16LittleEndian, kUtf16BigEndian, kWindows1252, kMacRoman };

/** By a name such as "utf-16le", whatever its case and with hyphens or without; none for others. */
std::optional<Encoding> EncodingOf(std::string_view name);
/** As EncodingOf takes them, for people. */
inline constexpr std::string_view kEncodingNames =
    "utf-8, utf-16le, utf-16be, windows-1252 or mac-roman";
std::string_view NameOf(Encoding encoding);

/** So much of a file says what it is in. */
inline constexpr std::size_t kEncodingHead = 4096;

/** By a byte-order mark; without one UTF-16 is known by zeros which stand only at odd or only at
 *  even places, among them those of line ends. Anything else is taken for UTF-8. */
Encoding DetectEncoding(std::string_view head);

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/** Whether all characters of Unicode can be written. */
bool HasAllCharacters(Encoding encoding);

/** How many bytes text in UTF-8 has in an encoding that has its characters. */
std::size_t SizeIn(Encoding encoding, std::string_view utf8);

/** Turns text in one encoding into UTF-8, or the other way round, by what the system knows of it.
 */
class Conversion {
  public:
    /** One of them is UTF-8, and not both. Throws Failure where the system does not know one. */
    Conversion(Encoding from, Encoding to);
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;
    ~Conversion();

    /** Appends the bytes' characters to `text`, and takes them off `bytes`: what is left is the
     *  beginning of a character. False where they are no characters of the one encoding, or the
     *  other one has not got them; of input that is not UTF-8, `bytes` then begin with these. */
    bool Convert(std::string_view& bytes, std::string& text);

  private:
    Encoding from;
    Encoding to;
    /** The system's own, where it has one. */
    void* state = nullptr;
};

/** Whether text in UTF-8 can be written in an encoding. */
bool CanHold(Conversion& conversion, std::string_view utf8);

}  // namespace linewright
