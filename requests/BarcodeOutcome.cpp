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

std::string_view SentTypeName(std::string_view written, const BarcodeType* type) {
    if (type == nullptr) return "";
    const std::string_view name = written.starts_with(type->name) ? written : type->name;
    return name.size() <= kMaxPStringLength ? name : "";
}

BarcodeOutcome MakeBarcodeLeniently(Service& service, const BarcodeWish& wish) {
    const WrittenType written = FindWrittenType(wish.type);
    const std::string_view sent = SentTypeName(wish.type, written.type);
    BarcodeOutcome outcome{.typeName = std::string(sent.empty() ? wish.type : sent),
                           .type = written.type};
    if (sent.empty()) {
        outcome.refusal = UnknownType(wish.type);
        return outcome;
    }
    ArticleNumber number{.data = wish.data};
    if (wish.isArticleNumber) {
        number = BringToForm(*written.type, wish.data);
        if (number.data.empty()) {
            outcome.refusal = Refusal{RefusalReason::kNumber, {}, std::move(number.finding)};
            return outcome;
        }
    }
    // An article number has its check digit.
    const uint8 checkCharacter = wish.isArticleNumber ? uint8{0} : wish.checkCharacter;
    EncodeAnswer answer = service.Encode({.typeName = outcome.typeName,
                                          .data = number.data,
                                          .isUtf8 = wish.isUtf8,
                                          .checkCharacter = checkCharacter,
                                          .ratio = wish.ratio});
    outcome.status = answer.status;
    outcome.hint = answer.hint;
    if (answer.status != 0) {
        outcome.refusal = RefusalOf(answer);
        outcome.marker = std::move(answer.bytes);
        return outcome;
    }
    outcome.meaning = MeaningOf({.type = *written.type,
                                 .data = number.data,
                                 .isUtf8 = wish.isUtf8,
                                 .isCheckWanted = checkCharacter != 0,
                                 .expectation = written.expectation,
                                 .fontString = answer.bytes});
    outcome.bytes = std::move(answer.bytes);
    outcome.note = std::move(number.finding);
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
