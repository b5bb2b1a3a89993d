#pragma once

#include <exception>
#include <string>
#include <utility>

namespace linewright {

/** What keeps a request from being sent. */
enum class FailureReason {
    /** The host or the plug-in does not start: the host's own sentence. */
    kHost,
    /** The plug-in offers no service: its file. */
    kNoService,
    /** The host has no memory for the data. */
    kNoMemory,
};

/** Thrown where a request cannot be sent, whatever its data. */
class RequestFailure : public std::exception {
  public:
    explicit RequestFailure(FailureReason failureReason, std::string itsParameter = "")
        : reason(failureReason), parameter(std::move(itsParameter)) {}

    const char* what() const noexcept override { return "a request that could not be met"; }

    FailureReason reason;
    /** What the reason names; "" for none. */
    std::string parameter;
};

}  // namespace linewright
