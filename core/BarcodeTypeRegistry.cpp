#include "core/BarcodeTypeRegistry.h"

#include <algorithm>

#include "core/Word.h"
#include "types/BarcodeTypes.h"

namespace linewright {

static_assert(kBarcodeTypes.size() <= std::tuple_size_v<BarcodeTypeRegistry>);
static_assert(kBarcodeTypes[kFirstCurrentType - 1].family == Family::kClassic &&
              kBarcodeTypes[kFirstCurrentType].family == Family::kCurrent);

namespace {

// Callers send a name and nothing behind it. The types are therefore laid out by the lengths of
// their names; those of one length are told apart by how they end.

constexpr std::size_t kLongestName =
    std::max_element(kBarcodeTypes.begin(), kBarcodeTypes.end(), [](const auto& a, const auto& b) {
        return a.name.size() < b.name.size();
    }) -> name.size();

struct NameIndex {
    struct Row {
        Word end;
        const BarcodeType* type;
    };
    std::array<Row, kBarcodeTypes.size()> rows{};
    std::array<std::uint8_t, kLongestName + 2> firstOfLength{};
};

constexpr NameIndex kNameIndex = [] {
    NameIndex index;
    std::uint8_t count = 0;
    for (std::size_t length = 0; length <= kLongestName; ++length) {
        index.firstOfLength[length] = count;
        for (const BarcodeType& type : kBarcodeTypes) {
            if (type.name.size() != length) continue;
            index.rows[count++] = {MakeWord(type.name.substr(length - kWordSize)), &type};
        }
    }
    index.firstOfLength.back() = count;
    return index;
}();
// No name begins with another one, so a name is found here exactly if it is found by its beginning.
static_assert(std::all_of(kBarcodeTypes.begin(), kBarcodeTypes.end(),
                          [](const auto& type) { return FindTypeByPrefix(type.name) == &type; }));

const BarcodeType* FindTypeByName(std::string_view name) {
    if (name.size() < kWordSize || name.size() > kLongestName) return nullptr;
    const Word end = LoadWord(name.data() + name.size() - kWordSize);
    for (std::size_t i = kNameIndex.firstOfLength[name.size()];
         i < kNameIndex.firstOfLength[name.size() + 1]; ++i)
        if (kNameIndex.rows[i].end == end && kNameIndex.rows[i].type->name == name)
            return kNameIndex.rows[i].type;
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
