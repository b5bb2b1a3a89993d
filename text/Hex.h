#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace linewright {

/** Two lower-case digits a byte. */
std::string ToHex(std::string_view bytes);

/** The bytes of pairs of digits in either case; none for anything else. */
std::optional<std::string> FromHex(std::string_view digits);

}  // namespace linewright
