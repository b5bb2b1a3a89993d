#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

namespace files {

// Drafts lie beside the file that they are to become, under short names of their own.

inline constexpr std::string_view kDraftPrefix = ".linewright-";
inline constexpr std::string_view kDraftSuffix = ".draft";
inline constexpr std::size_t kDraftNameLength = 12 + 32 + 6;

/** An age that only a draft has whose process is gone. */
inline constexpr std::chrono::hours kStaleAge{1};

/** A name with 128 random bits in it. */
std::string NewDraftName();
bool IsDraftName(std::string_view name);

/** Of a file's draft that stays: none that IsDraftName takes for one. */
inline std::filesystem::path LastingDraftName(const std::filesystem::path& fileName) {
    std::filesystem::path draft(".");
    draft += fileName;
    return draft += ".linewright-draft";
}

}  // namespace files
