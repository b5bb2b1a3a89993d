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

namespace linewright {

namespace {

// The one place that knows which encoder serves which type code, and with what.
constexpr EncoderTable kEncoders = [] {
    using Arguments = const EncoderArguments&;
    EncoderTable table{};
    table[1] = [](Arguments a) -> int32 { return EncodePostnetClassic(a.data); };
    table[2] = [](Arguments a) -> int32 {
        return EncodeIntelligentMail(a.data, a.hint, a.humanReadable);
    };
    table[3] = [](Arguments a) -> int32 {
        return EncodeCodabarClassic(a.data, static_cast<char>(preferences.codabarStart),
                                    static_cast<char>(preferences.codabarStop));
    };
    table[4] = [](Arguments a) -> int32 { return EncodeCode128A(a.data); };
    table[5] = [](Arguments a) -> int32 { return EncodeCode128B(a.data); };
    table[6] = [](Arguments a) -> int32 { return EncodeCode128C(a.data); };
    table[7] = [](Arguments a) -> int32 {
        return EncodeCode39Classic(a.data, false, preferences.code39CheckMode,
                                   preferences.code39UseAsterisk != 0);
    };
    table[8] = [](Arguments a) -> int32 {
        return EncodeCode39Classic(a.data, true, preferences.code39CheckMode,
                                   preferences.code39UseAsterisk != 0);
    };
    table[9] = EncodeEan8;
    table[10] = [](Arguments a) -> int32 { return EncodeEan13Classic(a.data); };
    table[11] = [](Arguments a) -> int32 {
        return EncodeInterleaved2of5Classic(a.data, preferences.i2of5CheckDigit != 0, false);
    };
    table[12] = [](Arguments a) -> int32 {
        return EncodeInterleaved2of5Classic(a.data, preferences.i2of5CheckDigit != 0, true);
    };
    table[13] = [](Arguments a) -> int32 { return EncodeJan13Classic(a.data); };
    table[14] = [](Arguments a) -> int32 {
        return EncodeMsiClassic(a.data, preferences.msiFirstCheck, preferences.msiSecondCheck);
    };
    table[15] = [](Arguments a) -> int32 { return EncodeUpcAClassic(a.data); };
    table[16] = [](Arguments a) -> int32 { return EncodeUpcEClassic(a.data); };
    table[20] = EncodeCodabarCurrent;
    table[21] = EncodeCode39Current;
    table[22] = EncodeCode128Auto;
    table[23] = EncodeEan13Current;
    table[24] = EncodeInterleaved2of5Current;
    table[25] = EncodeInterleaved2of5TextCurrent;
    table[26] = EncodeEan13Current;
    table[27] = EncodeMsiCurrent;
    table[28] = EncodeUpcACurrent;
    table[29] = EncodeUpcECurrent;
    table[30] = EncodePostnetCurrent;
    return table;
}();

}  // namespace

constinit const EncoderTable* encoders = &kEncoders;

}  // namespace linewright
