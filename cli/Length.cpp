#include "cli/Length.h"

#include <fmt/format.h>

#include <optional>

#include "merge/Failure.h"
#include "requests/WrittenLength.h"
#include "text/Readable.h"

namespace linewright {

namespace {

[[noreturn]] void Refuse(std::string_view text, std::string_view option) {
    throw Failure(fmt::format("{} \"{}\" is no length such as 0.33mm, 10mil, 12pt or 10x", option,
                              Readable(text)));
}

}  // namespace

Length LengthOf(std::string_view text, std::string_view option, bool isZeroAllowed) {
    const std::optional<Length> length = FindLength(text, isZeroAllowed);
    if (!length) Refuse(text, option);
    return *length;
}

double XDimensionOf(std::string_view text, std::string_view option) {
    const Length length = LengthOf(text, option);
    if (length.isInX) Refuse(text, option);
    return length.number;
}

Length ReductionOf(std::string_view text, std::string_view option) {
    const std::optional<Length> length = FindReduction(text);
    if (!length) Refuse(text, option);
    return *length;
}

}  // namespace linewright
