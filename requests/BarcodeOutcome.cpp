#include "requests/BarcodeOutcome.h"

#include <utility>

#include "types/WrittenType.h"

namespace linewright {

namespace {

/** The words of a marker such as "***Bad Code 39***"; "" for a text that is none. */
std::string_view MarkerWords(std::string_view bytes) {
    if (!bytes.starts_with("**")) return "";
    const std::size_t first = bytes.find_first_not_of("* ");
    if (first == std::string_view::npos) return "";
    return bytes.substr(first, bytes.find_last_not_of("* ") - first + 1);
}

Refusal RefusalOf(const EncodeAnswer& answer) {
    if (!answer.hint.empty()) return {RefusalReason::kPlugIn, {answer.hint}};
    const std::string_view words = MarkerWords(answer.bytes);
    if (words.empty()) return {RefusalReason::kPlugIn};
    return {RefusalReason::kPlugIn, {std::string(words)}};
}

Refusal UnknownType(std::string_view written) {
    const std::vector<std::string_view> nearest = NearestTypeNames(written);
    return {RefusalReason::kUnknownType, {nearest.begin(), nearest.end()}};
}

}  // namespace

std::string_view SentTypeName(std::string_view written, const BarcodeType& type) {
    return written.starts_with(type.name) ? written : type.name;
}

BarcodeOutcome MakeBarcodeLeniently(Service& service, const BarcodeWish& wish) {
    const WrittenType written = FindWrittenType(wish.type);
    BarcodeOutcome outcome{.typeName = wish.type, .type = written.type};
    if (written.type) outcome.typeName = SentTypeName(wish.type, *written.type);
    if (!written.type || outcome.typeName.size() > kMaxPStringLength) {
        outcome.refusal = UnknownType(wish.type);
        return outcome;
    }
    EncodeAnswer answer = service.Encode({.typeName = outcome.typeName,
                                          .data = wish.data,
                                          .isUtf8 = wish.isUtf8,
                                          .checkCharacter = wish.checkCharacter,
                                          .ratio = wish.ratio});
    outcome.status = answer.status;
    outcome.hint = answer.hint;
    if (answer.status != 0) {
        outcome.refusal = RefusalOf(answer);
        return outcome;
    }
    outcome.meaning = MeaningOf({.type = *written.type,
                                 .data = wish.data,
                                 .isUtf8 = wish.isUtf8,
                                 .isCheckWanted = wish.checkCharacter != 0,
                                 .expectation = written.expectation,
                                 .fontString = answer.bytes});
    outcome.bytes = std::move(answer.bytes);
    return outcome;
}

void RefuseForWarnings(BarcodeOutcome& outcome) {
    outcome.status.reset();
    outcome.bytes.clear();
    outcome.refusal = Refusal{RefusalReason::kStrict};
}

BarcodeOutcome MakeBarcode(Service& service, const BarcodeWish& wish) {
    BarcodeOutcome outcome = MakeBarcodeLeniently(service, wish);
    const bool isWarnedOf = outcome.IsMade() && !outcome.Warnings().empty();
    if (wish.isStrict && isWarnedOf) RefuseForWarnings(outcome);
    return outcome;
}

}  // namespace linewright
