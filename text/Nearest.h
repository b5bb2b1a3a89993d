#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace linewright {

/** At most `count` of the names: those that need the fewest changes to become what a user wrote,
 *  the nearest first. Blind to case. */
std::vector<std::string_view> Nearest(std::string_view written, std::vector<std::string_view> names,
                                      std::size_t count);

}  // namespace linewright
