#include "classic/Code128.h"
#include "core/EncoderTable.h"

namespace linewright {

namespace {

// The one place that knows which encoder serves which type code, and with what.
constexpr EncoderTable kEncoders = [] {
    using Arguments = const EncoderArguments&;
    EncoderTable table{};
    table[4] = [](Arguments a) -> int32 { return EncodeCode128A(a.data); };
    table[5] = [](Arguments a) -> int32 { return EncodeCode128B(a.data); };
    table[6] = [](Arguments a) -> int32 { return EncodeCode128C(a.data); };
    return table;
}();

}  // namespace

constinit const EncoderTable* encoders = &kEncoders;

}  // namespace linewright
