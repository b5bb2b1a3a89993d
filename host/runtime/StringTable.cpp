#include "host/runtime/StringTable.h"

#include <algorithm>

#include "host/runtime/Paths.h"
#include "host/runtime/ResourceFile.h"
#include "text/Utf8.h"

namespace fs = std::filesystem;

namespace host {

namespace {

fs::path FolderIn(const fs::path& resources) {
    return resources / "strings";
}

/** The file of a locale's texts; that of the TOML where there is none. */
fs::path FileOf(std::string_view locale, const fs::path& resources) {
    for (const fs::path& file : ResourceFilesIn(FolderIn(resources)))
        if (Utf8FromPath(file.stem()) == locale) return file;
    return FolderIn(resources) / PathFromUtf8(std::string(locale) + ".toml");
}

/** A key's text in the pseudo-locale: the key and the markers of its text, "|" between them. */
std::u32string PseudoText(const std::u32string& key, std::u32string_view text) {
    std::u32string result = key;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != U'^' || text[i + 1] < U'0' || text[i + 1] > U'3') continue;
        result += U'|';
        result += text.substr(i, 2);
    }
    return result;
}

}  // namespace

std::vector<std::string> ListLocales(const fs::path& resources) {
    std::vector<std::string> locales{std::string(kPseudoLocale)};
    if (fs::is_directory(FolderIn(resources))) {
        for (const fs::path& file : ResourceFilesIn(FolderIn(resources))) {
            locales.push_back(Utf8FromPath(file.stem()));
        }
    } else {
        locales.emplace_back(kDefaultLocale);
    }
    std::sort(locales.begin(), locales.end());
    return locales;
}

StringTable::StringTable(const fs::path& resources, std::string_view locale) {
    const bool isPseudo = locale == kPseudoLocale;
    const std::string_view source = isPseudo ? kDefaultLocale : locale;
    if (!fs::is_directory(FolderIn(resources))) return;
    const ResourceFile file(FileOf(source, resources));
    for (const auto& [name, node] : file.Root()) {
        const auto text = node.value_exact<std::string_view>();
        if (!text) file.Fail(node, "the text of a key is a string");
        const std::u32string key = linewright::CharactersFromUtf8(name.str());
        const std::u32string value = linewright::CharactersFromUtf8(*text);
        fTexts.emplace(key, isPseudo ? PseudoText(key, value) : value);
    }
}

const std::u32string* StringTable::Find(const std::u32string& key) const {
    const auto found = fTexts.find(key);
    return found == fTexts.end() ? nullptr : &found->second;
}

}  // namespace host
