#pragma once

#include <cstdlib>

namespace linewright {

/** How many random rows a property is tried on: as many as the environment's LINEWRIGHT_ROUNDS
 * says, or few enough for every run. */
inline int Rounds() {
    const char* const wanted = std::getenv("LINEWRIGHT_ROUNDS");
    return wanted ? std::atoi(wanted) : 20'000;
}

}  // namespace linewright
