#pragma once

#include <cstddef>

#include "bench/Cases.h"

namespace linewright::bench {

/** Encodes so many rows of a case by one call of the library in C, the case's rows again and again;
 *  the bytes of all font texts. */
std::size_t EncodeMany(const Case& benchCase, std::size_t count);

}  // namespace linewright::bench
