#include "presets/PresetFolder.h"

#include <algorithm>
#include <string_view>
#include <system_error>

#include "host/runtime/Paths.h"

namespace linewright {

namespace {

using Reason = PresetProblem::Reason;

constexpr std::string_view kEnding = ".toml";
constexpr std::size_t kLongestName = 100;

bool IsName(std::string_view name) {
    if (name.empty() || name.size() > kLongestName) return false;
    if (name.front() == '.' || name.back() == '.' || name.front() == ' ' || name.back() == ' ')
        return false;
    return std::none_of(name.begin(), name.end(), [](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return value < ' ' || value == 0x7F ||
               std::string_view("/\\:*?\"<>|").find(byte) != std::string_view::npos;
    });
}

}  // namespace

std::vector<std::string> PresetFolder::Names() const {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator place(folder, error), end; !error && place != end;
         place.increment(error)) {
        const std::string file = host::Utf8FromPath(place->path().filename());
        if (!file.ends_with(kEnding)) continue;
        std::string name = file.substr(0, file.size() - kEnding.size());
        if (IsName(name)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string PresetFolder::FileOf(const std::string& name) const {
    return host::Utf8FromPath(folder / host::PathFromUtf8(name + std::string(kEnding)));
}

void PresetFolder::Store(const std::string& name, const DrawingWish& wish) const {
    if (!IsName(name)) throw PresetFailure({.reason = Reason::kName, .key = name});
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        throw PresetFailure({.reason = Reason::kUnwritable,
                             .file = host::Utf8FromPath(folder),
                             .detail = error.message()});
    }
    WritePreset(FileOf(name), wish);
}

void PresetFolder::Remove(const std::string& name) const {
    std::error_code error;
    std::filesystem::remove(host::PathFromUtf8(FileOf(name)), error);
    if (!error) return;
    throw PresetFailure(
        {.reason = Reason::kUnwritable, .file = FileOf(name), .detail = error.message()});
}

}  // namespace linewright
