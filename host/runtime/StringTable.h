#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

/** The locales of a plug-in's string tables in alphabetical order, with the pseudo-locale; just
 *  the default and the pseudo-locale if it has no tables. */
std::vector<std::string> ListLocales(const std::filesystem::path& resources);

constexpr std::string_view kDefaultLocale = "enUS";
constexpr std::string_view kPseudoLocale = "qps";

/** The texts of one locale by their keys. */
class StringTable {
  public:
    StringTable() = default;
    /** Reads the table of a listed locale. Throws std::runtime_error saying file and line. */
    StringTable(const std::filesystem::path& resources, std::string_view locale);

    /** The text of a key; nullptr when it has none. */
    const std::u32string* Find(const std::u32string& key) const;

  private:
    std::unordered_map<std::u32string, std::u32string> fTexts;
};

}  // namespace host
