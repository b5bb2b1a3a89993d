#pragma once

#include <toml++/toml.h>

#include <string_view>

namespace host {

/**
 * The table that a compiled resource file holds: what a TOML file says, without its words.
 * `host/compile_resources.py` writes it.
 *
 *     table    "{", a text and a value for each name, "}"
 *     list     "[", values, "]"
 *     text     its length in bytes, ":", UTF-8
 *     number   "i", digits, ";"
 *     truth    "t" or "f"
 *
 * Throws std::runtime_error where the file is anything else.
 */
toml::table ReadCompiledResource(std::string_view content);

}  // namespace host
