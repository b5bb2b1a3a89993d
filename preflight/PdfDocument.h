#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "preflight/Document.h"

namespace linewright {

/** A PDF file, read by poppler's programs. `shown` stands in front of what is wrong with it. */
std::unique_ptr<Document> OpenPdf(const std::filesystem::path& path, const std::string& shown);

}  // namespace linewright
