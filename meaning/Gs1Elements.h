#pragma once

#include <string_view>
#include <vector>

#include "meaning/Warning.h"

namespace linewright {

/** An application identifier and its value. */
struct Gs1Element {
    std::string_view identifier;
    std::string_view value;
};

/** GS1 data, taken apart. Views into it. */
struct Gs1Elements {
    std::vector<Gs1Element> elements{};
    /** From where on no identifier is known: what follows cannot be told apart. */
    std::string_view rest{};
};

/** Takes apart what a symbol carries, in the form of Meaning::carried, as a reader does: a value
 *  whose identifier predefines its length ends there, every other one at a separator. */
Gs1Elements SplitElements(std::string_view carried);

/** The same where a separator stands between any two elements. */
Gs1Elements SplitSeparatedElements(std::string_view carried);

/** What is surely wrong with elements by the rules of their identifiers: at most one thing each. */
std::vector<Warning> ElementWarnings(const Gs1Elements& data);

}  // namespace linewright
