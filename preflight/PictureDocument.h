#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "preflight/Document.h"

namespace linewright {

// Pictures, of which each is a page. `shown` stands in front of what is wrong with one.

std::unique_ptr<Document> OpenPng(const std::filesystem::path& path, const std::string& shown,
                                  std::optional<double> dotsPerInch);
std::unique_ptr<Document> OpenTiff(const std::filesystem::path& path, const std::string& shown,
                                   std::optional<double> dotsPerInch);

/** The resolution that a PNG file states, in pixels a millimetre; none where it does not. */
std::optional<double> PngResolution(std::string_view png);

}  // namespace linewright
