#include "cli/StreamCommand.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include "cli/Failure.h"
#include "cli/Hex.h"
#include "cli/LineReader.h"
#include "cli/StreamRequest.h"
#include "text/FontText.h"

namespace linewright {

namespace {

using nlohmann::ordered_json;

constexpr std::size_t kMaxLineLength = 64U << 20;

ordered_json AnswerOf(const EncodeAnswer& answer) {
    return {
        {"status", answer.status},    {"recognised", answer.isRecognised},
        {"hex", ToHex(answer.bytes)}, {"text", FontText(answer.bytes)},
        {"hint", answer.hint},
    };
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
        ordered_json answer;
        try {
            if (result == LineReader::Result::kTooLong) {
                throw Failure(fmt::format("longer than {} bytes", kMaxLineLength));
            }
            answer = AnswerOf(service.Encode(ParseStreamRequest(line)));
        } catch (const Failure& failure) {
            answer = {{"error", fmt::format("line {}: {}", number, failure.what())}};
            exitStatus = kTrouble;
        }
        console.out << answer.dump() << '\n';
    }
    return exitStatus;
}

}  // namespace linewright
