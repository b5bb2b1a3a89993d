#include "core/EncodeBarcodeData.h"

#include "core/BarcodeTypeRegistry.h"
#include "core/ConvertUtf8Data.h"
#include "core/EncoderTable.h"
#include "core/ErrorAlert.h"
#include "core/HostMemory.h"
#include "core/PreferencesRecord.h"
#include "core/Status.h"

namespace linewright {

namespace {

int16 EncodeByCode(int32 code, const EncoderArguments& arguments) {
    if (code >= static_cast<int32>(encoders->size())) return kEncoded;
    const Encoder encoder = (*encoders)[static_cast<std::size_t>(code)];
    return encoder ? static_cast<int16>(encoder(arguments)) : EncodeNotSupported(arguments.data);
}

int16 Encode(int32 code, bool convert, const EncoderArguments& arguments) {
    const MemoryScope memory;
    const bool isPrepared =
        (!convert || ConvertUtf8Data(arguments.data)) && TrimSpaces(arguments.data);
    return isPrepared ? EncodeByCode(code, arguments) : kInternalError;
}

}  // namespace

int16 EncodeNotSupported(DataBlock data) {
    return FinishWith(data, "NOT SUPPORTED", kBadData);
}

int16 EncodeBarcodeData(uint8** data, const PString& typeName, uint32* length, uint64 options,
                        uint16* recognised, uint16 checkCharacter, double ratio, uint16 showAlerts,
                        PMString* hint, PMString* humanReadable) {
    if (!data || !length || (!*data && *length > 0)) return kInternalError;
    const DataBlock block{*data, *length};

    const int32 code = LookupTypeByName(typeName);
    if (code <= 0) {
        // No barcode is wanted that could fail: without memory the data keeps its spaces.
        TrimSpaces(block);
        return kEncoded;
    }
    if (recognised) *recognised = 1;

    const int16 status =
        Encode(code, (options & 0xFF) != 0, {block, checkCharacter, ratio, hint, humanReadable});

    if (showAlerts && preferences.showErrorAlerts && status != kEncoded)
        ReportFailure(status, static_cast<uint16>(code), block, hint);
    return status;
}

}  // namespace linewright
