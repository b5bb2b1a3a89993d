#include "meaning/UpcAColumn.h"

#include "core/Word.h"
#include "standards/CheckDigits.h"

namespace linewright {

void UpcAColumn::Take(const BarcodeType* type, std::string_view data) {
    constexpr std::size_t kUpcA = 12;
    const bool isEan13 =
        type && (type->code == TypeCode::kEan13 || type->code == TypeCode::kJan13 ||
                 type->code == TypeCode::kClassicEan13 || type->code == TypeCode::kClassicJan13);
    if (!isEan13 || data.size() != kUpcA) return;
    if (!AreDigits(LoadWord(data)) || !AreDigits(LoadWord(data.substr(kUpcA - kWordSize)))) return;
    ++numbers.of;
    if (Modulo10CheckDigit(data.substr(0, kUpcA - 1)) == data.back()) ++numbers.count;
}

void UpcAColumn::Add(const UpcAColumn& following) {
    numbers.count += following.numbers.count;
    numbers.of += following.numbers.of;
}

std::optional<UpcANumbers> UpcAColumn::Found() const {
    if (2 * numbers.count <= numbers.of) return std::nullopt;
    return numbers;
}

}  // namespace linewright
