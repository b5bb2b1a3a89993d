#pragma once

#include <string>

#include "PMString.h"

namespace linewright {

/** A host string as UTF-8. */
std::string Utf8FromHost(const PMString& text);

}  // namespace linewright
