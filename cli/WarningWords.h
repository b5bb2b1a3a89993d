#pragma once

#include <string>

#include "meaning/Warning.h"

namespace linewright {

/** A warning in English, as text that upsets no terminal and no file. UTF-8. */
std::string Sentence(const Warning& warning);

}  // namespace linewright
