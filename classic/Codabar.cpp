#include "classic/Codabar.h"

#include "core/FixedText.h"
#include "core/Status.h"
#include "standards/CodabarPatterns.h"

namespace linewright {

namespace {

constexpr uint32 kLongestData = 250;

}  // namespace

int16 EncodeCodabarClassic(DataBlock data, char start, char stop) {
    if (data.length > kLongestData)
        return FinishWith(data, "***Codabar Data Too Long***", kBadData);
    if (!ConsistsOf(data.View(), kCodabarDataCharacters))
        return FinishWith(data, "***Bad Codabar***", kBadData);
    FixedText<1 + kLongestData + 1> symbol;
    symbol.Append(start);
    symbol.Append(data.View());
    symbol.Append(stop);
    return FinishWith(data, symbol.View(), kEncoded);
}

}  // namespace linewright
