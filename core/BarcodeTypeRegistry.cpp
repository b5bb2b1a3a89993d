#include "core/BarcodeTypeRegistry.h"

namespace linewright {

namespace {

struct Row {
    uint16 code;
    const char* name;
    const char* displayKey;
    uint16 optionFlag1;
    uint16 optionFlag2;
    uint16 optionFlag3;
};

// Names match by prefix, so "_QVT_BARCODE_I2OF5_TEXT_" stands before "_QVT_BARCODE_I2OF5_".
constexpr Row kRows[] = {
    // 0
    {1, "_BARCODE_POSTNET_", "0x122100kLWRUtilityTypePopupItemPostNetLegacyKey", 0, 0, 0},
    {2, "_BARCODE_USPS_IM_", "0x122100kLWRUtilityTypePopupItem2Key", 0, 0, 0},
    {3, "_BARCODE_CODABAR_", "0x122100kLWRUtilityTypePopupItemCodabarLegacyKey", 0, 0, 0},
    {4, "_BARCODE_CODE128A_", "0x122100kLWRUtilityTypePopupItemCode128ALegacyKey", 0, 0, 0},
    {5, "_BARCODE_CODE128B_", "0x122100kLWRUtilityTypePopupItemCode128BLegacyKey", 0, 0, 0},
    {6, "_BARCODE_CODE128C_", "0x122100kLWRUtilityTypePopupItemCode128CLegacyKey", 0, 0, 0},
    {7, "_BARCODE_CODE39_", "0x122100kLWRUtilityTypePopupItemCode39LegacyKey", 0, 0, 0},
    {8, "_BARCODE_CODE39ASCII_", "0x122100kLWRUtilityTypePopupItemCode39ASCIILegacyKey", 0, 0, 0},
    {10, "_BARCODE_EAN13_", "0x122100kLWRUtilityTypePopupItemEAN13LegacyKey", 0, 0, 0},
    {11, "_BARCODE_I2OF5_", "0x122100kLWRUtilityTypePopupItemI2OF5LegacyKey", 0, 0, 0},
    // 10
    {12, "_BARCODE_I2OF5TEXT_", "0x122100kLWRUtilityTypePopupItemI2OF5TextLegacyKey", 0, 0, 0},
    {13, "_BARCODE_JAN13_", "0x122100kLWRUtilityTypePopupItemJAN13LegacyKey", 0, 0, 0},
    {14, "_BARCODE_MSIPLESSEY_", "0x122100kLWRUtilityTypePopupItemMSILegacyKey", 0, 0, 0},
    {15, "_BARCODE_UPCA_", "0x122100kLWRUtilityTypePopupItemUPCALegacyKey", 0, 0, 0},
    {16, "_BARCODE_UPCE_", "0x122100kLWRUtilityTypePopupItemUPCELegacyKey", 0, 0, 0},
    {20, "_QVT_BARCODE_CODABAR_", "0x122100kLWRUtilityTypePopupItem3Key", 0, 0, 1},
    {21, "_QVT_BARCODE_CODE39_", "0x122100kLWRUtilityTypePopupItem7Key", 1, 1, 1},
    {22, "_QVT_BARCODE_CODE128_", "0x122100kLWRUtilityTypePopupItemCode128Key", 0, 1, 0},
    {9, "_BARCODE_EAN8_", "0x122100kLWRUtilityTypePopupItem23Key", 0, 1, 0},
    {23, "_QVT_BARCODE_EAN13_", "0x122100kLWRUtilityTypePopupItem9Key", 0, 1, 0},
    // 20
    {25, "_QVT_BARCODE_I2OF5_TEXT_", "0x122100kLWRUtilityTypePopupItem11Key", 1, 1, 0},
    {24, "_QVT_BARCODE_I2OF5_", "0x122100kLWRUtilityTypePopupItem10Key", 1, 1, 1},
    {26, "_QVT_BARCODE_JAN13_", "0x122100kLWRUtilityTypePopupItem12Key", 0, 1, 0},
    {27, "_QVT_BARCODE_MSI_", "0x122100kLWRUtilityTypePopupItem13Key", 0, 1, 1},
    {28, "_QVT_BARCODE_UPCA_", "0x122100kLWRUtilityTypePopupItem14Key", 0, 1, 0},
    {29, "_QVT_BARCODE_UPCE_", "0x122100kLWRUtilityTypePopupItem15Key", 0, 1, 0},
    {30, "_QVT_BARCODE_POSTNET_", "0x122100kLWRUtilityTypePopupItem1Key", 0, 0, 0},
};
static_assert(std::size(kRows) == 27);

}  // namespace

BarcodeTypeRegistry registry;

void BuildTypeRegistry() {
    registry.fill({});
    auto entry = registry.begin();
    for (const Row& row : kRows) {
        entry->code = row.code;
        PStringFromCString(&entry->name, row.name);
        entry->displayText.SetKey(row.displayKey, PMString::kTranslateDuringCall);
        entry->optionFlag1 = row.optionFlag1;
        entry->optionFlag2 = row.optionFlag2;
        entry->optionFlag3 = row.optionFlag3;
        ++entry;
    }
}

int32 LookupTypeByName(const PString& name) {
    for (const BarcodeTypeEntry& entry : registry)
        if (name.View().starts_with(entry.name.View())) return entry.code;
    return -1;
}

const BarcodeTypeEntry* FindTypeByDisplayText(const PMString& text) {
    for (const BarcodeTypeEntry& entry : registry)
        if (entry.displayText == text) return &entry;
    return nullptr;
}

int32 DisplayTextForCode(uint16 code, PMString& out) {
    for (const BarcodeTypeEntry& entry : registry) {
        if (entry.code != code) continue;
        if (&out != &entry.displayText) out = entry.displayText;
        return 0;
    }
    out.Clear();
    return 1;
}

}  // namespace linewright
