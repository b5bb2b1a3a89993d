#pragma once

#include <string>

#include "scanners/Verification.h"

namespace linewright {

/** "scans", "scans as …", "does not scan" or "no scanner for this symbology". */
std::string VerdictWords(const Verification& verification);

}  // namespace linewright
