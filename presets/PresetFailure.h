#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace linewright {

/** What is wrong with a preset. */
struct PresetProblem {
    enum class Reason {
        /** The file cannot be read; `detail` says why, in the system's words. */
        kUnreadable,
        /** The file is longer than a preset can be. */
        kTooLong,
        /** No TOML; `detail` is the parser's word. */
        kSyntax,
        /** `detail` is the nearest key. */
        kUnknownKey,
        // Values of a wrong kind, or outside of their range.
        kNoXDimension,
        kNoLength,
        kNoReduction,
        kNoMagnification,
        kNoResolution,
        kNoSwitch,
        /** Both x-dimension and magnification. */
        kTwoSizes,
        /** `key` is a name that no file can have. */
        kName,
        /** `detail` says why, to follow the file's name. */
        kUnwritable,
    };

    Reason reason;
    /** The file's name. */
    std::string file{};
    /** From 1; 0 where it is no line's fault. */
    std::uint32_t line = 0;
    std::string key{};
    /** As it stands in the file. */
    std::string value{};
    std::string detail{};
};

/** Thrown where a preset cannot be read or stored. Texts are UTF-8. */
class PresetFailure : public std::exception {
  public:
    explicit PresetFailure(PresetProblem itsProblem) : problem(std::move(itsProblem)) {}

    const char* what() const noexcept override { return "a preset that cannot be had"; }

    PresetProblem problem;
};

}  // namespace linewright
