#pragma once

#include <string>

namespace host {

/** The text of a key in the locale of the host that runs; nullptr where it has none or no host
 *  runs. All that strings need of a host. */
const std::u32string* FindText(const std::u32string& key) noexcept;

}  // namespace host
