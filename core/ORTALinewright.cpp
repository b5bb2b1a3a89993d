#include "core/ORTALinewright.h"

#include "core/BarcodeTypeRegistry.h"
#include "core/EncodeBarcodeData.h"
#include "core/OpenPluginDialog.h"
#include "core/Status.h"

namespace linewright {

namespace {

PMString* HostString(void* slot) {
    return static_cast<PMString*>(slot);
}

/** The registry entry at first + typeIndex, if typeIndex is 0 to 14 and the entry is not empty. */
const BarcodeTypeEntry* FindEntry(std::size_t first, int16 typeIndex) {
    if (typeIndex < 0 || static_cast<std::size_t>(typeIndex) >= kFirstCurrentType) return nullptr;
    const BarcodeTypeEntry& entry = registry[first + static_cast<std::size_t>(typeIndex)];
    return entry.code != 0 ? &entry : nullptr;
}

int32 Encode(LinewrightRequestParams& params) {
    return EncodeBarcodeData(static_cast<uint8**>(params.slot1), params.typeName,
                             &params.dataLength, params.convertFromUtf8,
                             static_cast<uint16*>(params.slot2), params.checkCharacter,
                             params.ratio, 0, HostString(params.slot3), nullptr);
}

int32 ClassicTypeName(LinewrightRequestParams& params) {
    params.typeName.length = 0;
    if (const BarcodeTypeEntry* const entry = FindEntry(0, params.typeIndex))
        CopyPString(params.typeName, entry->name);
    return 0;
}

int32 CurrentType(const LinewrightRequestParams& params) {
    if (params.slot1) HostString(params.slot1)->Clear();
    const BarcodeTypeEntry* const entry = FindEntry(kFirstCurrentType, params.typeIndex);
    if (!entry) return 0;
    const auto store = [](void* slot, uint16 flag) {
        if (slot) *static_cast<uint16*>(slot) = flag;
    };
    if (params.slot1) *HostString(params.slot1) = entry->displayText;
    store(params.slot2, entry->optionFlag1);
    store(params.slot3, entry->optionFlag2);
    store(params.slot4, entry->optionFlag3);
    return 0;
}

int32 TypeNameForDisplayText(const LinewrightRequestParams& params) {
    if (params.slot2) HostString(params.slot2)->Clear();
    if (!params.slot1 || !params.slot2) return 0;
    if (const BarcodeTypeEntry* const entry = FindTypeByDisplayText(*HostString(params.slot1)))
        HostString(params.slot2)->SetString(entry->name.text, entry->name.length);
    return 0;
}

int32 DisplayTextForTypeName(const LinewrightRequestParams& params) {
    if (!params.slot1) return -1;
    PString name;
    name.length =
        static_cast<uint8>(HostString(params.slot1)->GetString(name.text, kMaxPStringLength));
    for (const BarcodeTypeEntry& entry : registry) {
        if (ComparePStrings(name, entry.name) != 0) continue;
        if (params.slot2) *HostString(params.slot2) = entry.displayText;
        return 0;
    }
    return -1;
}

int32 Carry(uint32 code, LinewrightRequestParams* params) {
    switch (code) {
        case kOpenDialogRequest:
            OpenPluginDialog(kUtilityDialogResourceID, IDialog::kModeless);
            return 0;
        case kNoOperationRequest: return 0;
        case kEncodeRequest: return params ? Encode(*params) : kInternalError;
        case kClassicTypeNameRequest: return params ? ClassicTypeName(*params) : kInternalError;
        case kCurrentTypeRequest: return params ? CurrentType(*params) : kInternalError;
        case kTypeNameRequest: return params ? TypeNameForDisplayText(*params) : kInternalError;
        case kDisplayTextRequest: return params ? DisplayTextForTypeName(*params) : kInternalError;
        default: return kUnknownRequest;
    }
}

}  // namespace

void ORTALinewright::ProcessRequest(LinewrightRequest* request) {
    if (request) request->result = Carry(request->code, request->params);
}

}  // namespace linewright
