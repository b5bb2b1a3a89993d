#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "types/BarcodeType.h"

namespace linewright {

/**
 * All types in the plug-in's order: indices 0 to 14 are the classic family, the others the current
 * one. Names match by prefix, so "_QVT_BARCODE_I2OF5_TEXT_" stands before "_QVT_BARCODE_I2OF5_".
 */
inline constexpr std::array kBarcodeTypes{
    // clang-format off
    // 0
    BarcodeType{TypeCode::kClassicPostnet, "_BARCODE_POSTNET_",
     "classic-postnet", "0x122100kLWRUtilityTypePopupItemPostNetLegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kPostnet, &kClassicPostnetFace,
     dimensions::Postal(dimensions::kPostnetClear), CheckDigit::kAlways},
    BarcodeType{TypeCode::kIntelligentMail, "_BARCODE_USPS_IM_",
     "imb", "0x122100kLWRUtilityTypePopupItem2Key", {0, 0, 0},
     Family::kClassic, Group::kPostal, Symbology::kIntelligentMail, &kPostalFace,
     dimensions::Postal(dimensions::kIntelligentMailClear)},
    BarcodeType{TypeCode::kClassicCodabar, "_BARCODE_CODABAR_",
     "classic-codabar", "0x122100kLWRUtilityTypePopupItemCodabarLegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kCodabar, &kClassicCodabarFace,
     dimensions::Linear()},
    BarcodeType{TypeCode::kClassicCode128A, "_BARCODE_CODE128A_",
     "classic-code128a", "0x122100kLWRUtilityTypePopupItemCode128ALegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kCode128, &kClassicCode128Face,
     dimensions::Linear()},
    BarcodeType{TypeCode::kClassicCode128B, "_BARCODE_CODE128B_",
     "classic-code128b", "0x122100kLWRUtilityTypePopupItemCode128BLegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kCode128, &kClassicCode128Face,
     dimensions::Linear()},
    BarcodeType{TypeCode::kClassicCode128C, "_BARCODE_CODE128C_",
     "classic-code128c", "0x122100kLWRUtilityTypePopupItemCode128CLegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kCode128, &kClassicCode128Face,
     dimensions::Linear()},
    BarcodeType{TypeCode::kClassicCode39, "_BARCODE_CODE39_",
     "classic-code39", "0x122100kLWRUtilityTypePopupItemCode39LegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kCode39, &kClassicCode39Face,
     dimensions::Linear(), CheckDigit::kByPreference},
    BarcodeType{TypeCode::kClassicCode39FullAscii, "_BARCODE_CODE39ASCII_",
     "classic-code39ascii", "0x122100kLWRUtilityTypePopupItemCode39ASCIILegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kCode39, &kClassicCode39Face,
     dimensions::Linear(), CheckDigit::kByPreference, Trait::kFullAscii},
    BarcodeType{TypeCode::kClassicEan13, "_BARCODE_EAN13_",
     "classic-ean13", "0x122100kLWRUtilityTypePopupItemEAN13LegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kEanUpc, &kClassicEanUpcFace,
     dimensions::Retail(11, 7), CheckDigit::kAlways, Trait::kLargeFirstDigit},
    BarcodeType{TypeCode::kClassicInterleaved2of5, "_BARCODE_I2OF5_",
     "classic-i2of5", "0x122100kLWRUtilityTypePopupItemI2OF5LegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kInterleaved2of5, &kClassicI2of5Face,
     dimensions::Linear(), CheckDigit::kByPreference},
    // 10
    BarcodeType{TypeCode::kClassicInterleaved2of5Text, "_BARCODE_I2OF5TEXT_",
     "classic-i2of5-text", "0x122100kLWRUtilityTypePopupItemI2OF5TextLegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kText, nullptr,
     dimensions::Text(), CheckDigit::kByPreference},
    BarcodeType{TypeCode::kClassicJan13, "_BARCODE_JAN13_",
     "classic-jan13", "0x122100kLWRUtilityTypePopupItemJAN13LegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kEanUpc, &kClassicEanUpcFace,
     dimensions::Retail(11, 7), CheckDigit::kAlways, Trait::kLargeFirstDigit},
    BarcodeType{TypeCode::kClassicMsi, "_BARCODE_MSIPLESSEY_",
     "classic-msi", "0x122100kLWRUtilityTypePopupItemMSILegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kMsi, &kClassicMsiFace,
     dimensions::Linear(dimensions::kMsiQuiet), CheckDigit::kByPreference},
    BarcodeType{TypeCode::kClassicUpcA, "_BARCODE_UPCA_",
     "classic-upca", "0x122100kLWRUtilityTypePopupItemUPCALegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kEanUpc, &kClassicEanUpcFace,
     dimensions::Retail(9, 9), CheckDigit::kAlways},
    BarcodeType{TypeCode::kClassicUpcE, "_BARCODE_UPCE_",
     "classic-upce", "0x122100kLWRUtilityTypePopupItemUPCELegacyKey", {0, 0, 0},
     Family::kClassic, Group::kClassic, Symbology::kEanUpc, &kClassicEanUpcFace,
     dimensions::Retail(9, 7), CheckDigit::kAlways},
    BarcodeType{TypeCode::kCodabar, "_QVT_BARCODE_CODABAR_",
     "codabar", "0x122100kLWRUtilityTypePopupItem3Key", {0, 0, 1},
     Family::kCurrent, Group::kLibrary, Symbology::kCodabar, &kBarsFace,
     dimensions::Linear()},
    BarcodeType{TypeCode::kCode39, "_QVT_BARCODE_CODE39_",
     "code39", "0x122100kLWRUtilityTypePopupItem7Key", {1, 1, 1},
     Family::kCurrent, Group::kLogistics, Symbology::kCode39, &kBarsFace,
     dimensions::Linear(), CheckDigit::kOnRequest},
    BarcodeType{TypeCode::kCode128, "_QVT_BARCODE_CODE128_",
     "code128", "0x122100kLWRUtilityTypePopupItemCode128Key", {0, 1, 0},
     Family::kCurrent, Group::kLogistics, Symbology::kCode128, &kBarsFace,
     dimensions::Linear()},
    BarcodeType{TypeCode::kEan8, "_BARCODE_EAN8_",
     "ean8", "0x122100kLWRUtilityTypePopupItem23Key", {0, 1, 0},
     Family::kCurrent, Group::kRetail, Symbology::kEanUpc, &kEanUpcFace,
     dimensions::Retail(7, 7), CheckDigit::kAlways, Trait::kNone, {{8}}},
    BarcodeType{TypeCode::kEan13, "_QVT_BARCODE_EAN13_",
     "ean13", "0x122100kLWRUtilityTypePopupItem9Key", {0, 1, 0},
     Family::kCurrent, Group::kRetail, Symbology::kEanUpc, &kEanUpcFace,
     dimensions::Retail(11, 7), CheckDigit::kAlways, Trait::kLargeFirstDigit, {{13}}},
    // 20
    BarcodeType{TypeCode::kInterleaved2of5Text, "_QVT_BARCODE_I2OF5_TEXT_",
     "i2of5-text", "0x122100kLWRUtilityTypePopupItem11Key", {1, 1, 0},
     Family::kCurrent, Group::kLogistics, Symbology::kText, nullptr,
     dimensions::Text(), CheckDigit::kOnRequest},
    BarcodeType{TypeCode::kInterleaved2of5, "_QVT_BARCODE_I2OF5_",
     "i2of5", "0x122100kLWRUtilityTypePopupItem10Key", {1, 1, 1},
     Family::kCurrent, Group::kLogistics, Symbology::kInterleaved2of5, &kBarsFace,
     dimensions::Linear(), CheckDigit::kOnRequest},
    BarcodeType{TypeCode::kJan13, "_QVT_BARCODE_JAN13_",
     "jan13", "0x122100kLWRUtilityTypePopupItem12Key", {0, 1, 0},
     Family::kCurrent, Group::kRetail, Symbology::kEanUpc, &kEanUpcFace,
     dimensions::Retail(11, 7), CheckDigit::kAlways, Trait::kLargeFirstDigit, {{13}}},
    BarcodeType{TypeCode::kMsi, "_QVT_BARCODE_MSI_",
     "msi", "0x122100kLWRUtilityTypePopupItem13Key", {0, 1, 1},
     Family::kCurrent, Group::kLibrary, Symbology::kMsi, &kBarsFace,
     dimensions::Linear(dimensions::kMsiQuiet), CheckDigit::kOnRequest},
    BarcodeType{TypeCode::kUpcA, "_QVT_BARCODE_UPCA_",
     "upca", "0x122100kLWRUtilityTypePopupItem14Key", {0, 1, 0},
     Family::kCurrent, Group::kRetail, Symbology::kEanUpc, &kEanUpcFace,
     dimensions::Retail(9, 9), CheckDigit::kAlways, Trait::kNone, {{12}}, {{14, 17}}},
    BarcodeType{TypeCode::kUpcE, "_QVT_BARCODE_UPCE_",
     "upce", "0x122100kLWRUtilityTypePopupItem15Key", {0, 1, 0},
     Family::kCurrent, Group::kRetail, Symbology::kEanUpc, &kEanUpcFace,
     dimensions::Retail(9, 7), CheckDigit::kAlways, Trait::kNone, {{8, 12}}},
    BarcodeType{TypeCode::kPostnet, "_QVT_BARCODE_POSTNET_",
     "postnet", "0x122100kLWRUtilityTypePopupItem1Key", {0, 0, 0},
     Family::kCurrent, Group::kPostal, Symbology::kPostnet, &kPostalFace,
     dimensions::Postal(dimensions::kPostnetClear), CheckDigit::kOnRequest},
    // clang-format on
};
static_assert(std::is_sorted(kBarcodeTypes.begin(), kBarcodeTypes.end(),
                             [](const BarcodeType& a, const BarcodeType& b) {
                                 return a.family < b.family;
                             }));

/** The first type whose name begins the query, byte for byte, as the plug-in looks types up; what
 *  stands behind the name does not matter. nullptr when there is none. */
constexpr const BarcodeType* FindTypeByPrefix(std::string_view query) {
    const auto type =
        std::find_if(kBarcodeTypes.begin(), kBarcodeTypes.end(),
                     [&](const BarcodeType& row) { return query.starts_with(row.name); });
    return type == kBarcodeTypes.end() ? nullptr : &*type;
}

}  // namespace linewright
