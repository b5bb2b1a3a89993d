#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace linewright {

struct ImbCode {
    std::string tracking;
    std::string routing;

    bool operator==(const ImbCode&) const = default;
};

/** Reads 65 bar letters back to their digits; none unless every character is one of the code, every
 *  codeword is in its range, the routing value is one, and the frame check sequence holds. Shares
 *  nothing with the encoder but the published bar map. */
std::optional<ImbCode> DecodeImb(std::string_view bars);

}  // namespace linewright
