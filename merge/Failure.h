#pragma once

#include <stdexcept>
#include <string>

namespace linewright {

/** Ends a command with exit status 2. The text is a sentence for the user, UTF-8, that says what is
 *  wrong and where; of a very long one, which quotes what it was given, the middle is left out.
 *  Never leaves RunCommand. */
class Failure : public std::runtime_error {
  public:
    explicit Failure(const std::string& sentence);
};

}  // namespace linewright
