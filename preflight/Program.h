#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace linewright {

/** What may become of a program that is run. */
struct ProgramLimits {
    std::chrono::seconds time{60};
    /** Of its standard output, in bytes. */
    std::size_t output = std::size_t{1} << 30;
};

struct ProgramResult {
    /** Standard output. */
    std::string output;
    /** The first line of standard error. */
    std::string error;
    /** Whether it ended by itself with exit status 0. */
    bool isDone = false;
};

/** Runs a program of the search path, its name and arguments as they stand, without a shell, and
 *  takes what it prints. Throws Failure where it is not there, takes longer or prints more than it
 *  may; it is ended then. */
ProgramResult RunProgram(const std::vector<std::string>& words, const ProgramLimits& limits = {});

}  // namespace linewright
