#include "scanners/EanUpcNumber.h"

#include "standards/UpcEZeroSuppression.h"

namespace linewright {

std::string EanUpcNumber(const std::string& digits, bool isUpcE) {
    if (isUpcE && digits.size() == 8) {
        const auto ten = ExpandUpcE(std::string_view(digits).substr(1, 6));
        return std::string{'0', digits.front()}.append(ten.begin(), ten.end()) + digits.back();
    }
    if (digits.size() == 12) return '0' + digits;
    return digits;
}

}  // namespace linewright
