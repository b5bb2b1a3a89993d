#include "cli/TypeNames.h"

#include <array>
#include <cstddef>
#include <utility>

#include "cli/Nearest.h"

namespace linewright {

namespace {

/** The short names, in the order in which the plug-in lists its types. */
constexpr std::array<TypeName, 27> kTypeNames{{
    {"classic-postnet", "_BARCODE_POSTNET_"},
    {"imb", "_BARCODE_USPS_IM_"},
    {"classic-codabar", "_BARCODE_CODABAR_"},
    {"classic-code128a", "_BARCODE_CODE128A_"},
    {"classic-code128b", "_BARCODE_CODE128B_"},
    {"classic-code128c", "_BARCODE_CODE128C_"},
    {"classic-code39", "_BARCODE_CODE39_"},
    {"classic-code39ascii", "_BARCODE_CODE39ASCII_"},
    {"classic-ean13", "_BARCODE_EAN13_"},
    {"classic-i2of5", "_BARCODE_I2OF5_"},
    {"classic-i2of5-text", "_BARCODE_I2OF5TEXT_"},
    {"classic-jan13", "_BARCODE_JAN13_"},
    {"classic-msi", "_BARCODE_MSIPLESSEY_"},
    {"classic-upca", "_BARCODE_UPCA_"},
    {"classic-upce", "_BARCODE_UPCE_"},
    {"codabar", "_QVT_BARCODE_CODABAR_"},
    {"code39", "_QVT_BARCODE_CODE39_"},
    {"code128", "_QVT_BARCODE_CODE128_"},
    {"ean8", "_BARCODE_EAN8_"},
    {"ean13", "_QVT_BARCODE_EAN13_"},
    {"i2of5-text", "_QVT_BARCODE_I2OF5_TEXT_"},
    {"i2of5", "_QVT_BARCODE_I2OF5_"},
    {"jan13", "_QVT_BARCODE_JAN13_"},
    {"msi", "_QVT_BARCODE_MSI_"},
    {"upca", "_QVT_BARCODE_UPCA_"},
    {"upce", "_QVT_BARCODE_UPCE_"},
    {"postnet", "_QVT_BARCODE_POSTNET_"},
}};

/** How many names are offered. */
constexpr std::size_t kOffered = 3;

}  // namespace

std::string_view TypeNameOf(std::string_view written) {
    for (const TypeName& row : kTypeNames) {
        if (row.shortName == written) return row.typeName;
    }
    return written;
}

std::string_view ShortNameOf(std::string_view typeName) {
    for (const TypeName& row : kTypeNames) {
        if (row.typeName == typeName) return row.shortName;
    }
    return "";
}

std::vector<std::string_view> NearestNames(std::string_view written) {
    const bool isTypeName = written.starts_with('_');
    std::vector<std::string_view> names;
    for (const TypeName& row : kTypeNames) {
        names.push_back(isTypeName ? row.typeName : row.shortName);
    }
    return Nearest(written, std::move(names), kOffered);
}

}  // namespace linewright
