#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "documents/Layout.h"

namespace linewright {

/** What is wrong with a layout: a sentence in English that begins with the file's name and says the
 *  line and the key. */
class LayoutFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/** A layout that is longer is refused. */
inline constexpr std::size_t kMostLayoutBytes = std::size_t{1} << 20;

/** Reads a layout from the content of a TOML file (docs/cli.md has its keys) for records with such
 *  columns. The file's name is for messages. Throws LayoutFailure. */
Layout ReadLayout(const std::string& content, const std::string& fileName,
                  const std::vector<std::string>& columns);

}  // namespace linewright
