#include "core/EncodeBarcodeData.h"

#include "core/BarcodeTypeRegistry.h"
#include "core/ConvertUtf8Data.h"
#include "core/EncoderTable.h"
#include "core/ErrorAlert.h"
#include "core/PreferencesRecord.h"
#include "core/Status.h"

namespace linewright {

namespace {

int16 EncodeByCode(int32 code, const EncoderArguments& arguments) {
    if (code >= static_cast<int32>(encoders->size())) return kEncoded;
    const Encoder encoder = (*encoders)[static_cast<std::size_t>(code)];
    return encoder ? static_cast<int16>(encoder(arguments)) : EncodeNotSupported(arguments.data);
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

    const bool convert = (options & 0xFF) != 0;
    const bool prepared = (!convert || ConvertUtf8Data(block)) && TrimSpaces(block);
    const int16 status =
        prepared ? EncodeByCode(code, {block, checkCharacter, ratio, hint, humanReadable})
                 : kInternalError;

    if (showAlerts && preferences.showErrorAlerts && status != kEncoded)
        ReportFailure(status, static_cast<uint16>(code), block, hint);
    return status;
}

}  // namespace linewright
