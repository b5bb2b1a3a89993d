#include "classic/Codabar.h"
#include "classic/Code128.h"
#include "classic/Code39.h"
#include "classic/EanUpc.h"
#include "classic/Interleaved2of5.h"
#include "classic/Msi.h"
#include "classic/Postnet.h"
#include "core/EncoderTable.h"
#include "core/PreferencesRecord.h"
#include "current/Codabar.h"
#include "current/Code128Auto.h"
#include "current/Code39.h"
#include "current/Ean13.h"
#include "current/Ean8.h"
#include "current/Interleaved2of5.h"
#include "current/Msi.h"
#include "current/Postnet.h"
#include "current/UpcA.h"
#include "current/UpcE.h"
#include "imb/EncodeIntelligentMail.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

ClassicCode39Options Code39Options(bool fullAscii) {
    return {.fullAscii = fullAscii,
            .checkMode = preferences.code39CheckMode,
            .useAsterisk = preferences.code39UseAsterisk != 0};
}

// The one place that knows which encoder serves which type, and with what.
constexpr Encoder EncoderOf(TypeCode code) {
    using Arguments = const EncoderArguments&;
    switch (code) {
        case TypeCode::kClassicPostnet:
            return [](Arguments a) -> int32 { return EncodePostnetClassic(a.data); };
        case TypeCode::kIntelligentMail:
            return [](Arguments a) -> int32 {
                return EncodeIntelligentMail(a.data, a.hint, a.humanReadable);
            };
        case TypeCode::kClassicCodabar:
            return [](Arguments a) -> int32 {
                return EncodeCodabarClassic(a.data, static_cast<char>(preferences.codabarStart),
                                            static_cast<char>(preferences.codabarStop));
            };
        case TypeCode::kClassicCode128A:
            return [](Arguments a) -> int32 { return EncodeCode128A(a.data); };
        case TypeCode::kClassicCode128B:
            return [](Arguments a) -> int32 { return EncodeCode128B(a.data); };
        case TypeCode::kClassicCode128C:
            return [](Arguments a) -> int32 { return EncodeCode128C(a.data); };
        case TypeCode::kClassicCode39:
            return [](Arguments a) -> int32 {
                return EncodeCode39Classic(a.data, Code39Options(false));
            };
        case TypeCode::kClassicCode39FullAscii:
            return [](Arguments a) -> int32 {
                return EncodeCode39Classic(a.data, Code39Options(true));
            };
        case TypeCode::kEan8: return EncodeEan8;
        case TypeCode::kClassicEan13:
            return [](Arguments a) -> int32 { return EncodeEan13Classic(a.data); };
        case TypeCode::kClassicInterleaved2of5:
            return [](Arguments a) -> int32 {
                return EncodeInterleaved2of5Classic(a.data, preferences.i2of5CheckDigit != 0,
                                                    false);
            };
        case TypeCode::kClassicInterleaved2of5Text:
            return [](Arguments a) -> int32 {
                return EncodeInterleaved2of5Classic(a.data, preferences.i2of5CheckDigit != 0, true);
            };
        case TypeCode::kClassicJan13:
            return [](Arguments a) -> int32 { return EncodeJan13Classic(a.data); };
        case TypeCode::kClassicMsi:
            return [](Arguments a) -> int32 {
                return EncodeMsiClassic(a.data, preferences.msiFirstCheck,
                                        preferences.msiSecondCheck);
            };
        case TypeCode::kClassicUpcA:
            return [](Arguments a) -> int32 { return EncodeUpcAClassic(a.data); };
        case TypeCode::kClassicUpcE:
            return [](Arguments a) -> int32 { return EncodeUpcEClassic(a.data); };
        case TypeCode::kCodabar: return EncodeCodabarCurrent;
        case TypeCode::kCode39: return EncodeCode39Current;
        case TypeCode::kCode128: return EncodeCode128Auto;
        case TypeCode::kEan13: return EncodeEan13Current;
        case TypeCode::kInterleaved2of5: return EncodeInterleaved2of5Current;
        case TypeCode::kInterleaved2of5Text: return EncodeInterleaved2of5TextCurrent;
        case TypeCode::kJan13: return EncodeEan13Current;
        case TypeCode::kMsi: return EncodeMsiCurrent;
        case TypeCode::kUpcA: return EncodeUpcACurrent;
        case TypeCode::kUpcE: return EncodeUpcECurrent;
        case TypeCode::kPostnet: return EncodePostnetCurrent;
    }
    return nullptr;
}

constexpr EncoderTable kEncoders = [] {
    EncoderTable table{};
    for (const BarcodeType& type : kBarcodeTypes) {
        table[static_cast<std::size_t>(type.code)] = EncoderOf(type.code);
    }
    return table;
}();

}  // namespace

constinit const EncoderTable* encoders = &kEncoders;

}  // namespace linewright
