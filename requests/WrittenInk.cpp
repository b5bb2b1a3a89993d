#include "requests/WrittenInk.h"

#include <array>
#include <charconv>
#include <string>

#include "text/Readable.h"

namespace linewright {

namespace {

/** "C,M,Y,K" in per cent. */
std::optional<std::array<double, 4>> CmykOf(std::string_view text) {
    std::array<double, 4> parts{};
    const char* at = text.data();
    const char* const last = at + text.size();
    for (double& part : parts) {
        if (&part != parts.data() && (at == last || *at++ != ',')) return std::nullopt;
        const auto [end, error] = std::from_chars(at, last, part);
        if (error != std::errc() || !(part >= 0 && part <= 100)) return std::nullopt;
        part /= 100;
        at = end;
    }
    return at == last ? std::optional(parts) : std::nullopt;
}

}  // namespace

std::optional<Ink> FindInk(std::string_view text) {
    constexpr std::string_view kCmyk = "cmyk:";
    if (text == "black") return Ink{};
    if (text.empty()) return std::nullopt;
    if (!text.starts_with(kCmyk)) return Ink{.kind = Ink::Kind::kSpot, .name = Readable(text)};
    const auto parts = CmykOf(text.substr(kCmyk.size()));
    if (!parts) return std::nullopt;
    return Ink{.kind = Ink::Kind::kCmyk, .cmyk = *parts};
}

}  // namespace linewright
