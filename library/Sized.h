#pragma once

#include <algorithm>
#include <cstring>

#include "library/Opened.h"

namespace linewright {

/** A struct of a program that was compiled with this or another release's header: what it does not
 *  know is as in `usual`; what this library does not know must not be stated. */
template <class Struct>
Struct Sized(const Struct* given, const Struct& usual) {
    Struct whole = usual;
    if (given == nullptr) return whole;
    std::memcpy(&whole, given, std::min(given->size, sizeof whole));
    const char* const bytes = reinterpret_cast<const char*>(given);
    const auto isStated = [](char byte) { return byte != 0; };
    if (given->size > sizeof whole &&
        std::any_of(bytes + sizeof whole, bytes + given->size, isStated)) {
        throw CallFailure{
            LINEWRIGHT_BAD_ARGUMENT,
            "a struct states something that this release of the library does not know"};
    }
    return whole;
}

}  // namespace linewright
