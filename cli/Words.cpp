#include "cli/Words.h"

#include <fmt/format.h>

#include "cli/WarningWords.h"
#include "text/Readable.h"

namespace linewright {

std::string WhyRefused(const Outcome& outcome) {
    if (!outcome.refusal) return "";
    const std::vector<std::string>& texts = outcome.refusal->texts;
    switch (outcome.refusal->reason) {
        case RefusalReason::kUnknownType:
            return fmt::format("there is no type \"{}\"; nearest: {}",
                               Readable(outcome.typeName.substr(0, 80)), fmt::join(texts, ", "));
        case RefusalReason::kPlugIn:
            return texts.empty() ? "the encoder failed" : Readable(texts.front());
        case RefusalReason::kStrict: return "a warning, and --strict is on";
    }
    return "";
}

std::string JoinedWarnings(const Outcome& outcome) {
    std::string text;
    for (const Warning& warning : outcome.Warnings()) {
        if (!text.empty()) text += "; ";
        text += Sentence(warning);
    }
    return text;
}

std::string Sentence(const RequestFailure& failure) {
    switch (failure.reason) {
        case FailureReason::kHost: return failure.parameter;
        case FailureReason::kNoService:
            return fmt::format("the plug-in offers no service: {}", failure.parameter);
        case FailureReason::kNoMemory: return "the host has no memory for the data";
    }
    return "";
}

std::string Sentence(const DrawingFailure& failure) {
    using Reason = DrawingProblem::Reason;
    const std::vector<std::string>& texts = failure.problem.parameters;
    switch (failure.problem.reason) {
        case Reason::kNoFont:
            return fmt::format("{}: there is no such font, or it cannot be read", texts[0]);
        case Reason::kNoAxes:
            return fmt::format("{}: the font has not the axes that are asked for", texts[0]);
        case Reason::kFixedHeight: return "postal bars have the heights that their standard gives";
        case Reason::kHeight:
            return fmt::format("the bars can be {} mm to {} mm high at this X-dimension", texts[0],
                               texts[1]);
        case Reason::kReduction:
            return fmt::format("bars can be 0 % to {} % of the narrowest bar narrower", texts[0]);
    }
    return "";
}

}  // namespace linewright
