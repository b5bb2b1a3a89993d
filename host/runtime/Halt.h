#pragma once

#include <string>

namespace host {

/** Whether the host checks that the rules of its interfaces are kept, and halts where one is not.
 */
#ifdef NDEBUG
constexpr bool kChecksRules = false;
#else
constexpr bool kChecksRules = true;
#endif

/** Ends the process, having said on standard error which rule was broken. */
[[noreturn]] void Halt(const std::string& brokenRule);

}  // namespace host
