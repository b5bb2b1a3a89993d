#pragma once

#include <istream>
#include <ostream>

#include "requests/Service.h"
#include "words/Words.h"

namespace linewright {

/** The raw door to the plug-in: a JSON object a line in, one a line out, in order, as soon as no
 *  further input waits. Whether all lines were requests. */
bool AnswerLines(Service& service, std::istream& in, std::ostream& out, Language language);

}  // namespace linewright
