#include "cli/EncodeCommand.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include "cli/Encoding.h"
#include "cli/Hex.h"
#include "cli/ReadAll.h"
#include "text/FontText.h"
#include "types/BarcodeTypes.h"

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

std::string JsonOf(const BarcodeOutcome& outcome) {
    const nlohmann::ordered_json object{
        {"type", outcome.typeName},
        {"shortName", FindTypeByPrefix(outcome.typeName)->shortName},
        {"status", outcome.status.value()},
        {"hex", ToHex(outcome.bytes)},
        {"text", FontText(outcome.bytes)},
        {"warnings", outcome.warnings},
    };
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

void Print(const BarcodeOutcome& outcome, EncodeOptions::Form form, std::ostream& out) {
    switch (form) {
        case EncodeOptions::Form::kText: out << FontText(outcome.bytes) << '\n'; break;
        case EncodeOptions::Form::kJson: out << JsonOf(outcome) << '\n'; break;
        case EncodeOptions::Form::kHex: out << ToHex(outcome.bytes) << '\n'; break;
        case EncodeOptions::Form::kRaw: out << outcome.bytes; break;
    }
}

}  // namespace

EncodeRequest RequestOf(const EncodeOptions& options, Console& console) {
    return {
        .typeName = options.type,
        .data = DataOf(options, console.in),
        .isUtf8 = !options.isBytes,
        .checkCharacter = static_cast<uint8>(options.isCheckWanted ? 1 : 0),
        .ratio = options.ratio,
    };
}

void ReportOutcome(const BarcodeOutcome& outcome, Console& console) {
    for (const std::string& warning : outcome.warnings) {
        console.err << "linewright: warning: " << warning << '\n';
    }
    if (outcome.isMade) return;
    console.err << "linewright: refused"
                << (outcome.status ? fmt::format(" (status {})", *outcome.status) : "") << ": "
                << outcome.message << '\n';
}

ExitStatus RunEncode(Service& service, const EncodeOptions& options, Console& console) {
    const BarcodeOutcome outcome =
        MakeBarcode(service, RequestOf(options, console), options.isStrict);
    ReportOutcome(outcome, console);
    if (!outcome.isMade) return kRefused;
    Print(outcome, options.form, console.out);
    return kDone;
}

}  // namespace linewright
