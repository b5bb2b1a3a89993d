#include "core/BarcodeTypeRegistry.h"

#include <algorithm>

#include "core/Word.h"
#include "types/BarcodeTypes.h"

namespace linewright {

static_assert(kBarcodeTypes.size() <= std::tuple_size_v<BarcodeTypeRegistry>);
static_assert(kBarcodeTypes[kFirstCurrentType - 1].family == Family::kClassic &&
              kBarcodeTypes[kFirstCurrentType].family == Family::kCurrent);

namespace {

// Callers send a name and nothing behind it. The types are therefore laid out by the endings and
// lengths of their names, each in the first free place from the one that they give.

struct NamedType {
    Word key = 0;  // 0 in a free place
    const BarcodeType* type = nullptr;
};

/** Of the last eight bytes of a name, and its length. */
constexpr Word KeyOf(Word ending, std::size_t length) {
    return ending + length;
}

constexpr std::size_t kPlaceBits = 6;
using NameIndex = std::array<NamedType, (1 << kPlaceBits)>;
static_assert(kBarcodeTypes.size() < std::tuple_size_v<NameIndex>);

constexpr std::size_t PlaceOf(Word key) {
    return key * 0x9E3779B97F4A7C15 >> (64 - kPlaceBits);
}

constexpr NameIndex kNameIndex = [] {
    NameIndex index;
    for (const BarcodeType& type : kBarcodeTypes) {
        const std::size_t length = type.name.size();
        const Word key = KeyOf(MakeWord(type.name.substr(length - kWordSize)), length);
        std::size_t place = PlaceOf(key);
        while (index[place].key != 0) place = (place + 1) % index.size();
        index[place] = {key, &type};
    }
    return index;
}();
// No name begins with that of a type in front of it, so a whole name finds here what its beginning
// finds.
static_assert(std::all_of(kBarcodeTypes.begin(), kBarcodeTypes.end(), [](const BarcodeType& type) {
    return FindTypeByPrefix(type.name)->code == type.code;
}));

const BarcodeType* FindTypeByName(std::string_view name) {
    if (name.size() < kWordSize) return nullptr;
    const Word key = KeyOf(LoadWord(name.data() + name.size() - kWordSize), name.size());
    for (std::size_t place = PlaceOf(key); kNameIndex[place].key != 0;
         place = (place + 1) % kNameIndex.size())
        if (kNameIndex[place].key == key && kNameIndex[place].type->name == name)
            return kNameIndex[place].type;
    return nullptr;
}

}  // namespace

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
    const BarcodeType* type = FindTypeByName(name.View());
    if (!type) type = FindTypeByPrefix(name.View());
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
