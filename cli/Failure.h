#pragma once

#include <stdexcept>

namespace linewright {

/** Ends a command with exit status 2. The text is a sentence for the user, UTF-8, that says what is
 *  wrong and where. Never leaves RunCommand. */
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace linewright
