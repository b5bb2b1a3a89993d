#pragma once

#include "meaning/Bars.h"
#include "meaning/Intent.h"
#include "types/TypeCode.h"

namespace linewright::meaning {

/** What is known of a type beyond its row in the table. */
struct TypeRules {
    Bars (*read)(std::string_view fontString);
    Intent (*intent)(const TypedData& data);
    /** What the encoder leaves out of data that it accepts, as the text of those characters;
     *  nullptr where it leaves out nothing. */
    std::string (*dropped)(std::string_view data) = nullptr;
    /** The length up to which zeros in front make a retail number longer; 0 where none do. */
    std::size_t filledTo = 0;
};

TypeRules RulesOf(TypeCode code);

}  // namespace linewright::meaning
