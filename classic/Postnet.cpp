#include "classic/Postnet.h"

#include "classic/FontLetters.h"
#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/PString.h"
#include "core/Status.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr std::string_view kMarker = "***Bad Zip Code***";

/** ZIP, ZIP+4 and delivery point. */
constexpr bool IsZipLength(std::size_t digitCount) {
    return digitCount == 5 || digitCount == 9 || digitCount == 11;
}

}  // namespace

int16 EncodePostnetClassic(DataBlock data) {
    if (data.length > kMaxPStringLength) return FinishWith(data, kMarker, kBadData);
    FixedText<kMaxPStringLength> digits;
    for (const char character : data.View())
        if (IsDigit(character)) digits.Append(character);
    if (!IsZipLength(digits.View().size())) return FinishWith(data, kMarker, kBadData);

    FixedText<1 + 11 + 2> symbol;
    symbol.Append(classic::kFrameBar);
    symbol.Append(digits.View());
    symbol.Append(PostnetCheckDigit(digits.View()));
    symbol.Append(classic::kFrameBar);
    return FinishWith(data, symbol.View(), kEncoded);
}

}  // namespace linewright
