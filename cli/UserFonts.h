#pragma once

#include <filesystem>
#include <string>

namespace linewright {

// What the systems do differently with a user's own fonts.

/** The folder for them, which need not be there yet; empty when the system does not say. */
std::filesystem::path UserFontFolder();

/** Makes a font file in the folder known where lying there does not do it. `family` is ASCII. */
void AnnounceFont(const std::filesystem::path& file, const std::string& family);

}  // namespace linewright
