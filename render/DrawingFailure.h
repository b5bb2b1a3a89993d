#pragma once

#include <exception>
#include <string>
#include <utility>

#include "render/DrawingProblem.h"

namespace linewright {

/** Thrown where a drawing cannot be had. */
class DrawingFailure : public std::exception {
  public:
    explicit DrawingFailure(DrawingProblem drawingProblem) : problem(std::move(drawingProblem)) {}

    DrawingFailure(DrawingProblem::Reason reason, std::vector<std::string> parameters = {})
        : problem{reason, std::move(parameters)} {}

    const char* what() const noexcept override { return "a drawing that could not be made"; }

    DrawingProblem problem;
};

}  // namespace linewright
