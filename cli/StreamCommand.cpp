#include "cli/StreamCommand.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include "cli/Failure.h"
#include "cli/LineReader.h"
#include "cli/StreamRequest.h"
#include "text/FontText.h"
#include "text/Hex.h"

namespace linewright {

namespace {

using nlohmann::ordered_json;

constexpr std::size_t kMaxLineLength = 64U << 20;

/** An answer, with the id of its request in front where there is one. */
std::string LineOf(const ordered_json& answer, const std::string& id) {
    const std::string object = answer.dump();
    return id.empty() ? object : fmt::format("{{\"id\":{},{}", id, object.substr(1));
}

ordered_json AnswerOf(const EncodeAnswer& answer) {
    return {
        {"status", answer.status},    {"recognised", answer.isRecognised},
        {"hex", ToHex(answer.bytes)}, {"text", FontText(answer.bytes)},
        {"hint", answer.hint},
    };
}

ordered_json ErrorAt(std::size_t line, const std::string& sentence) {
    return {{"error", fmt::format("line {}: {}", line, sentence)}};
}

}  // namespace

ExitStatus RunStream(Service& service, Console& console) {
    LineReader reader(console.in, console.out);
    ExitStatus exitStatus = kDone;
    std::string line;
    std::size_t number = 0;
    for (;;) {
        const LineReader::Result result = reader.Next(line, kMaxLineLength);
        if (result == LineReader::Result::kEnd) break;
        ++number;
        std::string id;
        ordered_json answer;
        try {
            if (result == LineReader::Result::kTooLong) {
                throw Failure(fmt::format("longer than {} bytes", kMaxLineLength));
            }
            answer = AnswerOf(service.Encode(ParseStreamRequest(line, id)));
        } catch (const Failure& failure) {
            answer = ErrorAt(number, failure.what());
            exitStatus = kTrouble;
        } catch (const RequestFailure& failure) {
            answer = ErrorAt(number, Sentence(failure, console.language));
            exitStatus = kTrouble;
        }
        console.out << LineOf(answer, id) << '\n';
    }
    return exitStatus;
}

}  // namespace linewright
