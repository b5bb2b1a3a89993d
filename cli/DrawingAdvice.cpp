#include "cli/DrawingAdvice.h"

#include <fmt/format.h>

namespace linewright {

std::string AdvisedSentence(const DrawingFailure& failure, Language language) {
    const DrawingProblem& problem = failure.problem;
    std::string sentence = Sentence(failure, language);
    if (problem.reason != DrawingProblem::Reason::kNoWholeDots) return sentence;
    return fmt::format("{}: --x-dimension {}mm, or --fit", sentence, problem.parameters.at(2));
}

std::string AdvisedSentence(const DrawingWarning& warning, Language language) {
    std::string sentence = Sentence(warning, language);
    if (warning.kind != DrawingWarning::Kind::kReductionLost) return sentence;
    return sentence + "; give --dpi";
}

}  // namespace linewright
