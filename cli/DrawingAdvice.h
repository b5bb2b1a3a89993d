#pragma once

#include <string>

#include "words/Words.h"

namespace linewright {

// Sentences about drawings, with the options of this command that help.

std::string AdvisedSentence(const DrawingFailure& failure, Language language);
std::string AdvisedSentence(const DrawingWarning& warning, Language language);

}  // namespace linewright
