#include "cli/Encoding.h"

#include <fmt/format.h>

#include <utility>

#include "cli/WarningWords.h"
#include "text/Readable.h"
#include "types/BarcodeTypes.h"
#include "types/WrittenType.h"

namespace linewright {

namespace {

std::string UnknownType(std::string_view written) {
    return fmt::format("there is no type \"{}\"; nearest: {}", Readable(written.substr(0, 80)),
                       fmt::join(NearestTypeNames(written), ", "));
}

/** The words of a marker such as "***Bad Code 39***"; "" for a text that is none. */
std::string_view MarkerWords(std::string_view bytes) {
    if (!bytes.starts_with("**")) return "";
    const std::size_t first = bytes.find_first_not_of("* ");
    if (first == std::string_view::npos) return "";
    return bytes.substr(first, bytes.find_last_not_of("* ") - first + 1);
}

std::string WhyRefused(const EncodeAnswer& answer) {
    if (!answer.hint.empty()) return answer.hint;
    const std::string_view words = MarkerWords(answer.bytes);
    return words.empty() ? "the encoder failed" : Readable(words);
}

}  // namespace

BarcodeOutcome MakeBarcode(Service& service, EncodeRequest request, bool isStrict) {
    const std::string written = std::exchange(request.typeName, "");
    const auto [type, expectation] = FindWrittenType(written);
    request.typeName = type && !written.starts_with('_') ? type->name : written;
    BarcodeOutcome outcome;
    outcome.typeName = request.typeName;
    if (written.empty() || request.typeName.size() > kMaxPStringLength) {
        outcome.message = UnknownType(written);
        return outcome;
    }
    EncodeAnswer answer = service.Encode(request);
    if (!answer.isRecognised) {
        outcome.message = UnknownType(written);
        return outcome;
    }
    outcome.status = answer.status;
    if (answer.status != 0) {
        outcome.message = WhyRefused(answer);
        return outcome;
    }
    outcome.meaning = MeaningOf({
        .type = *FindTypeByPrefix(request.typeName),
        .data = request.data,
        .isUtf8 = request.isUtf8,
        .isCheckWanted = request.checkCharacter != 0,
        .expectation = expectation,
        .fontString = answer.bytes,
    });
    for (const Warning& warning : outcome.meaning.warnings) {
        outcome.warnings.push_back(Sentence(warning));
    }
    if (isStrict && !outcome.warnings.empty()) {
        outcome.status.reset();
        outcome.message = "a warning, and --strict is on";
        return outcome;
    }
    outcome.isMade = true;
    outcome.bytes = std::move(answer.bytes);
    return outcome;
}

std::string Joined(const std::vector<std::string>& sentences) {
    return fmt::format("{}", fmt::join(sentences, "; "));
}

}  // namespace linewright
