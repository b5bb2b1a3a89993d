#include "meaning/UpcAColumn.h"

#include "core/Word.h"

namespace linewright {

void UpcAColumn::Take(const BarcodeType* type, std::string_view data) {
    constexpr std::size_t kUpcA = 12;
    const bool isEan13 =
        type && (type->code == TypeCode::kEan13 || type->code == TypeCode::kJan13 ||
                 type->code == TypeCode::kClassicEan13 || type->code == TypeCode::kClassicJan13);
    if (!isEan13 || data.size() != kUpcA) return;
    const Word firstEight = Load<Word>(data.data());
    const Word lastEight = Load<Word>(data.data() + kUpcA - kWordSize);
    if (!AreDigits(firstEight) || !AreDigits(lastEight)) return;
    ++numbers.of;
    // The check digit completes the sum of the others to a multiple of ten.
    const std::size_t sum = WeightedSum(DigitValues(firstEight), 3, 1) +
                            WeightedSum(DigitValues(lastEight >> 32), 3, 1);
    if (sum % 10 == 0) ++numbers.count;
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
