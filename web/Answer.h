#pragma once

#include <string>

#include "words/Words.h"

namespace linewright::web {

/** What JavaScript reads after a call: UTF-8. */
std::string& Answer();

Language CurrentLanguage();

}  // namespace linewright::web
