#pragma once

#include <string_view>

namespace linewright {

// What stands in place of data that an encoder of the current family or of Intelligent Mail
// refused.

constexpr std::string_view kLengthError = "** Barcode Length Error **";
constexpr std::string_view kDataError = "** Barcode Data Error **";
constexpr std::string_view kProcessError = "** Barcode Process Error **";

/** Keys of the hints that say what is wrong with the data. Numbers fill the markers of those about
 *  its length. */
namespace hints {

constexpr const char* kLessThan = "0x122100kLWRBarCodeLengthLessThanHint";
constexpr const char* kLessThanOrCheckDigit = "0x122100kLWRBarCodeLengthLessThanOrCheckDigitHint";
constexpr const char* kBetween = "0x122100kLWRBarCodeLengthBetweenHint";
constexpr const char* kMustBe = "0x122100kLWRBarCodeLengthMustBeHint";
constexpr const char* kDigitsOnly = "0x122100kLWRBarCodeDataDigitsOnlyHint";
constexpr const char* kDigitsPlus = "0x122100kLWRBarCodeDataDigitsPlusHint";
constexpr const char* kUpperCasePlusSpaces = "0x122100kLWRBarCodeDataDigitsUpperCasePlusSpacesHint";

}  // namespace hints

}  // namespace linewright
