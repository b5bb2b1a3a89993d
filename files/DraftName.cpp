#include "files/DraftName.h"

#include <random>

namespace files {

namespace {

constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kRandomDigits = 32;

static_assert(kDraftNameLength == kDraftPrefix.size() + kRandomDigits + kDraftSuffix.size());

}  // namespace

std::string NewDraftName() {
    std::random_device random;
    std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
    std::string name(kDraftPrefix);
    for (std::size_t i = 0; i < kRandomDigits; ++i) name += kDigits[digit(random)];
    return name.append(kDraftSuffix);
}

bool IsDraftName(std::string_view name) {
    return name.size() == kDraftNameLength && name.starts_with(kDraftPrefix) &&
           name.ends_with(kDraftSuffix) &&
           name.substr(kDraftPrefix.size(), kRandomDigits).find_first_not_of(kDigits) ==
               std::string_view::npos;
}

}  // namespace files
