#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace linewright {

/** Finds the delimiter that stands most often, outside of quotes, in a file's first line: comma,
 *  semicolon or tab; a comma where there is none. */
class DelimiterFinder {
  public:
    /** Takes the next piece of the file; true once the line has ended. */
    bool Take(std::string_view text);
    char Found() const;

  private:
    std::array<std::size_t, 3> counts{};
    bool isQuoted = false;
};

/** How many lines end in a text: by LF, CRLF or CR. */
std::uint64_t CountLineEnds(std::string_view text);

/** What a field says that begins with a quote; see CsvValue. */
std::string_view UnquotedValue(std::string_view field, std::string& memory);

/** What a field of a file says, without its quotes; a view into the field or, where quotes stand
 *  inside it, into `memory`. */
inline std::string_view CsvValue(std::string_view field, std::string& memory) {
    return field.starts_with('"') ? UnquotedValue(field, memory) : field;
}
std::string CsvValue(std::string_view field);

/** Whether a value stands in quotes as a field. */
bool NeedsQuotes(std::string_view value, char delimiter);

/** A text as a field of a file, in quotes where it needs them. */
std::string CsvField(std::string_view value, char delimiter);

}  // namespace linewright
