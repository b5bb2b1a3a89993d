#include "merge/Failure.h"

namespace linewright {

namespace {

constexpr std::size_t kLongest = 2000;
constexpr std::size_t kKept = 900;

bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::string Bounded(const std::string& text) {
    if (text.size() <= kLongest) return text;
    std::size_t end = kKept;
    while (end > 0 && ContinuesCharacter(text[end])) --end;
    std::size_t rest = text.size() - kKept;
    while (rest < text.size() && ContinuesCharacter(text[rest])) ++rest;
    return text.substr(0, end) + " \xE2\x80\xA6 " + text.substr(rest);
}

}  // namespace

Failure::Failure(const std::string& sentence) : std::runtime_error(Bounded(sentence)) {}

}  // namespace linewright
