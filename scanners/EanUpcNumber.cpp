#include "scanners/EanUpcNumber.h"

#include "meaning/CheckRules.h"

namespace linewright::verify {

std::string EanUpcNumber(const std::string& digits, bool isUpcE) {
    if (isUpcE && digits.size() == 8) return '0' + ExpandedUpcE(digits) + digits.back();
    if (digits.size() == 12) return '0' + digits;
    return digits;
}

}  // namespace linewright::verify
