#pragma once

#include <stdexcept>
#include <string>

#include "documents/Layout.h"

namespace linewright {

/** What is wrong with a layout: a sentence in English that begins with the file's name and says the
 *  line and the key. */
class LayoutFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/** Reads a layout from the content of a TOML file, whose name is for messages; see docs/cli.md for
 *  its keys. Throws LayoutFailure. */
Layout ReadLayout(const std::string& content, const std::string& fileName);

/** Fails, with what is wrong in a sentence, on labels that overlap or leave their page. */
void CheckSheet(const LabelSheet& sheet, double padding);

}  // namespace linewright
