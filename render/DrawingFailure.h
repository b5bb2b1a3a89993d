#pragma once

#include <exception>
#include <utility>

#include "render/DrawingProblem.h"

namespace linewright {

/** Thrown where a drawing cannot be had. */
class DrawingFailure : public std::exception {
  public:
    explicit DrawingFailure(DrawingProblem drawingProblem) : problem(std::move(drawingProblem)) {}

    const char* what() const noexcept override { return "a drawing that could not be made"; }

    DrawingProblem problem;
};

}  // namespace linewright
