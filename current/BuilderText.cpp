#include "current/BuilderText.h"

namespace linewright {

void AppendDigits(std::string_view text, std::size_t most, TextArea& digits) {
    for (const char character : text)
        if (IsDigit(character) && digits.View().size() < most) digits.Append(character);
}

}  // namespace linewright
