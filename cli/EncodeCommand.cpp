#include "cli/EncodeCommand.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include "merge/ReadAll.h"
#include "text/FontText.h"
#include "text/Hex.h"

namespace linewright {

namespace {

/** Text from a pipe commonly ends with a line break that is no data. */
void RemoveLastLineBreak(std::string& text) {
    if (!text.ends_with('\n')) return;
    text.pop_back();
    if (text.ends_with('\r')) text.pop_back();
}

std::string DataOf(const EncodeOptions& options, std::istream& input) {
    if (options.data != "-") return options.data;
    std::string data = ReadAll(input);
    if (!options.isBytes) RemoveLastLineBreak(data);
    return data;
}

/** What was made or, of a refusal, why nothing was. */
std::string JsonOf(const BarcodeOutcome& outcome, Language language) {
    nlohmann::ordered_json object{
        {"type", outcome.typeName},
        {"shortName", outcome.type ? outcome.type->shortName : ""},
        {"status", nullptr},
    };
    if (outcome.status) object["status"] = *outcome.status;
    if (outcome.IsMade()) {
        object["hex"] = ToHex(outcome.bytes);
        object["text"] = FontText(outcome.bytes);
    } else {
        object["message"] = WhyRefused(outcome, language);
        object["hint"] = outcome.hint;
    }
    if (outcome.note) object["note"] = Sentence(*outcome.note, language);
    object["warnings"] = nlohmann::json::array();
    for (const Warning& warning : outcome.Warnings()) {
        object["warnings"].push_back(Sentence(warning, language));
    }
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

void Print(const BarcodeOutcome& outcome, EncodeOptions::Form form, Console& console) {
    std::ostream& out = console.out;
    switch (form) {
        case EncodeOptions::Form::kText: out << FontText(outcome.bytes) << '\n'; break;
        case EncodeOptions::Form::kJson: out << JsonOf(outcome, console.language) << '\n'; break;
        case EncodeOptions::Form::kHex: out << ToHex(outcome.bytes) << '\n'; break;
        case EncodeOptions::Form::kRaw: out << outcome.bytes; break;
    }
}

}  // namespace

BarcodeWish WishOf(const EncodeOptions& options, Console& console) {
    return {
        .type = options.type,
        .data = DataOf(options, console.in),
        .isUtf8 = !options.isBytes,
        .checkCharacter = static_cast<uint8>(options.isCheckWanted ? 1 : 0),
        .ratio = options.ratio.value_or(2.0),
        .isStrict = options.isStrict,
        .isArticleNumber = options.isArticleNumber,
    };
}

void ReportOutcome(const BarcodeOutcome& outcome, Console& console) {
    if (outcome.note) {
        console.err << "linewright: note: " << Sentence(*outcome.note, console.language) << '\n';
    }
    for (const Warning& warning : outcome.Warnings()) {
        console.err << "linewright: warning: " << Sentence(warning, console.language) << '\n';
    }
    if (outcome.IsMade()) return;
    console.err << "linewright: refused"
                << (outcome.status ? fmt::format(" (status {})", *outcome.status) : "") << ": "
                << WhyRefused(outcome, console.language) << '\n';
}

ExitStatus RunEncode(Service& service, const EncodeOptions& options, Console& console) {
    const BarcodeOutcome outcome = MakeBarcode(service, WishOf(options, console));
    ReportOutcome(outcome, console);
    if (outcome.IsMade() || options.form == EncodeOptions::Form::kJson) {
        Print(outcome, options.form, console);
    }
    return outcome.IsMade() ? kDone : kRefused;
}

}  // namespace linewright
