#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace linewright {

/** What became of an installation of the barcode fonts. */
struct InstalledFonts {
    std::size_t count = 0;
    std::filesystem::path folder{};
    /** What kept it from being done, with the file's or folder's name; "" for nothing. UTF-8. */
    std::string error{};
};

/** Installs the static fonts in `fonts` for the user. */
InstalledFonts InstallUserFonts(const std::filesystem::path& fonts);

}  // namespace linewright
