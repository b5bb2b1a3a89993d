#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace linewright {

/** What an Intelligent Mail barcode says. */
struct ImbDigits {
    /** 20 digits. */
    std::string tracking;
    /** 0, 5, 9 or 11 digits. */
    std::string routing;

    bool operator==(const ImbDigits&) const = default;
};

/** Reads 65 letters of "A", "D", "F" and "T" back to their digits; none unless every character is
 *  one of USPS-B-3200, every codeword lies in its range, and the frame check sequence holds. */
std::optional<ImbDigits> ImbDecode(std::string_view bars);

}  // namespace linewright
