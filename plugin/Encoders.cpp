#include "classic/Code128.h"
#include "core/EncoderTable.h"
#include "current/Codabar.h"
#include "current/Code128Auto.h"
#include "current/Code39.h"
#include "current/Ean13.h"
#include "current/Ean8.h"
#include "current/InterleavedTwoOfFive.h"
#include "current/Msi.h"
#include "current/Postnet.h"
#include "current/UpcA.h"
#include "current/UpcE.h"

namespace linewright {

namespace {

// The one place that knows which encoder serves which type code, and with what.
constexpr EncoderTable kEncoders = [] {
    using Arguments = const EncoderArguments&;
    EncoderTable table{};
    table[4] = [](Arguments a) -> int32 { return EncodeCode128A(a.data); };
    table[5] = [](Arguments a) -> int32 { return EncodeCode128B(a.data); };
    table[6] = [](Arguments a) -> int32 { return EncodeCode128C(a.data); };
    table[9] = EncodeEan8;
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
