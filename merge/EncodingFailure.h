#pragma once

#include "merge/Failure.h"

namespace linewright {

/** Bytes that are no characters of the encoding that a file is read in. */
class EncodingFailure : public Failure {
  public:
    using Failure::Failure;
};

}  // namespace linewright
