#include "workbench/RowJudge.h"

#include <utility>

namespace linewright {

RowVerdict VerdictOn(Service& service, PlainBarcodes& plain, const BarcodeWish& wish,
                     Language language) {
    if (const auto made = plain.Make(wish.type, wish.data, wish.checkCharacter, wish.ratio))
        return {RowState::kMade, "", std::string(made->fontString)};
    BarcodeOutcome outcome = MakeBarcode(service, wish);
    if (!outcome.IsMade()) return {RowState::kRefused, WhyRefused(outcome, language), ""};
    std::string warnings = JoinedWarnings(outcome, language);
    const RowState state = warnings.empty() ? RowState::kMade : RowState::kWarned;
    return {state, std::move(warnings), std::move(outcome.bytes)};
}

std::string AnswersByPreferences(Service& service) {
    constexpr std::pair<const char*, const char*> kProbes[]{{"classic-code39", "A1"},
                                                            {"classic-i2of5", "123"},
                                                            {"classic-msi", "123"},
                                                            {"classic-codabar", "1"}};
    std::string answers;
    for (const auto& [type, data] : kProbes) {
        answers += MakeBarcode(service, {.type = type, .data = data}).bytes;
        answers += '\n';
    }
    return answers;
}

}  // namespace linewright
