#pragma once

#include <istream>
#include <ostream>
#include <string>

namespace linewright {

/** Takes lines from a stream as they come, and lets the answers out whenever it would have to wait
 *  for more. */
class LineReader {
  public:
    enum class Result { kLine, kTooLong, kEnd };

    /** Both streams are borrowed. */
    LineReader(std::istream& source, std::ostream& waiting) : input(source), answers(waiting) {}

    /** The next line without its line break; a last one without a break counts if it holds
     *  anything. A line above `maxLength` bytes is skipped. */
    Result Next(std::string& line, std::size_t maxLength);

  private:
    bool Refill();

    std::istream& input;
    std::ostream& answers;
    std::string buffer;
    std::size_t position = 0;
};

}  // namespace linewright
