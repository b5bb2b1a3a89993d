#include "core/BarcodeTypeRegistry.h"

#include "types/BarcodeTypes.h"

namespace linewright {

static_assert(kBarcodeTypes.size() <= std::tuple_size_v<BarcodeTypeRegistry>);
static_assert(kBarcodeTypes[kFirstCurrentType - 1].family == Family::kClassic &&
              kBarcodeTypes[kFirstCurrentType].family == Family::kCurrent);

BarcodeTypeRegistry registry;

void BuildTypeRegistry() {
    registry.fill({});
    auto entry = registry.begin();
    for (const BarcodeType& type : kBarcodeTypes) {
        entry->code = static_cast<uint16>(type.code);
        PStringFromCString(&entry->name, type.name.data());
        entry->displayText.SetKey(type.displayKey.data(), PMString::kTranslateDuringCall);
        entry->optionFlag1 = type.optionFlags[0];
        entry->optionFlag2 = type.optionFlags[1];
        entry->optionFlag3 = type.optionFlags[2];
        ++entry;
    }
}

int32 LookupTypeByName(const PString& name) {
    const BarcodeType* const type = FindTypeByPrefix(name.View());
    return type ? static_cast<int32>(type->code) : 0;
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
