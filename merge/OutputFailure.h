#pragma once

#include "merge/Failure.h"

namespace linewright {

/** What is wrong with an output, whatever was being read when it was found. */
class OutputFailure : public Failure {
  public:
    using Failure::Failure;
};

}  // namespace linewright
