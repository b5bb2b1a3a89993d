#pragma once

#include <string>

#include "requests/DrawingFailure.h"
#include "requests/Outcome.h"
#include "requests/RequestFailure.h"

namespace linewright {

// The command's words for what the rooms below it say by reasons: sentences in UTF-8.

/** Why an outcome is a refusal; "" for one that is none. */
std::string WhyRefused(const Outcome& outcome);
/** All warnings of an outcome as one text. */
std::string JoinedWarnings(const Outcome& outcome);
std::string Sentence(const RequestFailure& failure);
std::string Sentence(const DrawingFailure& failure);

}  // namespace linewright
