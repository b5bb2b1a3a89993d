#pragma once

#include <string>
#include <string_view>

#include "meaning/UpcAColumn.h"
#include "meaning/Warning.h"
#include "render/DrawingFailure.h"
#include "render/DrawingWarning.h"
#include "requests/BarcodeOutcome.h"
#include "requests/RequestFailure.h"

namespace linewright {

// What the rooms below say by reasons, as sentences for people: UTF-8 that upsets no terminal.

enum class Language { kEnglish, kGerman, kFrench, kJapanese };

/** The language of a locale such as "deDE"; English where there is no other. */
Language LanguageOf(std::string_view locale);

std::string Sentence(const Warning& warning, Language language);
std::string Sentence(const NumberFinding& finding, Language language);
std::string Sentence(const UpcANumbers& numbers, Language language);
/** The note on an outcome and all its warnings as one text. */
std::string JoinedWarnings(const BarcodeOutcome& outcome, Language language);
/** Why an outcome is a refusal; "" for one that is none. */
std::string WhyRefused(const BarcodeOutcome& outcome, Language language);
std::string Sentence(const RequestFailure& failure, Language language);
std::string Sentence(const DrawingFailure& failure, Language language);
std::string Sentence(const DrawingWarning& warning, Language language);

}  // namespace linewright
