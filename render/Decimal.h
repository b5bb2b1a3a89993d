#pragma once

#include <string>

namespace linewright {

/** A number with at most so many digits behind a point, 15 at most, whatever the locale: its exact
 *  value rounded, the middle between two to the even one. */
std::string Decimal(double number, int digits);

}  // namespace linewright
