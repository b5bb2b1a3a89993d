#include "host/runtime/ResourceFile.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <stdexcept>

#include "host/runtime/CompiledResource.h"
#include "host/runtime/Paths.h"
#include "host/runtime/Platform.h"
#include "text/Utf8.h"

namespace fs = std::filesystem;

namespace host {

namespace {

constexpr const char* kCompiledExtension = ".resource";

std::string ReadWhole(const fs::path& path) {
    std::FILE* const file = OpenFile(path);
    if (!file) throw std::runtime_error("resource file missing: " + Utf8FromPath(path));
    std::string content;
    char part[4096];
    while (const std::size_t count = std::fread(part, 1, sizeof part, file)) {
        content.append(part, count);
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed) throw std::runtime_error("resource file cannot be read: " + Utf8FromPath(path));
    return content;
}

/** Writes characters above 127 as escapes, which basic strings, the only ones used here, take for
 *  the same: toml++ 3.3 runs into undefined behaviour where such a letter begins a continued line.
 *  What is not UTF-8 stays, for the parser to refuse. */
std::string Escaped(const std::string& utf8) {
    if (linewright::FirstInvalidUtf8(utf8)) return utf8;
    std::string result;
    for (const char32_t c : linewright::CharactersFromUtf8(utf8)) {
        if (c < 0x80) {
            result += static_cast<char>(c);
            continue;
        }
        char escape[16];
        std::snprintf(escape, sizeof escape, "\\U%08X", static_cast<unsigned>(c));
        result += escape;
    }
    return result;
}

toml::table ParseToml(const std::string& content, const std::string& name) {
    return toml::parse(Escaped(content), name);
}

std::runtime_error ErrorAt(const std::string& file, const toml::source_region& where,
                           const std::string& what) {
    const std::string line =
        where.begin.line > 0 ? ", line " + std::to_string(where.begin.line) : "";
    return std::runtime_error(file + line + ": " + what);
}

}  // namespace

std::vector<fs::path> ResourceFilesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        const fs::path& path = entry.path();
        const bool isToml = path.extension() == ".toml" &&
                            !fs::exists(fs::path(path).replace_extension(kCompiledExtension));
        if (isToml || path.extension() == kCompiledExtension) files.push_back(path);
    }
    std::sort(files.begin(), files.end());
    return files;
}

ResourceFile::ResourceFile(const fs::path& path) : fName(Utf8FromPath(path)) {
    const std::string content = ReadWhole(path);
    try {
        fRoot = path.extension() == kCompiledExtension ? ReadCompiledResource(content)
                                                       : ParseToml(content, fName);
    } catch (const toml::parse_error& error) {
        throw ErrorAt(fName, error.source(), std::string(error.description()));
    } catch (const std::runtime_error& error) {
        throw ErrorAt(fName, {}, error.what());
    }
}

const toml::node& ResourceFile::Get(const toml::table& table, std::string_view name) const {
    const toml::node* const node = table.get(name);
    if (!node) Fail(table, "\"" + std::string(name) + "\" is missing");
    return *node;
}

std::string ResourceFile::GetText(const toml::table& table, std::string_view name) const {
    const toml::node& node = Get(table, name);
    const auto text = node.value_exact<std::string>();
    if (!text) Fail(node, "\"" + std::string(name) + "\" is a string");
    return *text;
}

uint32_t ResourceFile::GetID(const toml::table& table, std::string_view name) const {
    const toml::node& node = Get(table, name);
    const auto number = node.value_exact<int64_t>();
    if (!number || *number < 1 || *number > std::numeric_limits<uint32_t>::max()) {
        Fail(node, "\"" + std::string(name) + "\" is a number from 1 to 0xFFFFFFFF");
    }
    return static_cast<uint32_t>(*number);
}

std::vector<const toml::table*> ResourceFile::GetTables(const toml::table& table,
                                                        std::string_view name) const {
    const toml::node& node = Get(table, name);
    std::vector<const toml::table*> tables;
    if (!node.is_array()) Fail(node, "\"" + std::string(name) + "\" is a list of tables");
    for (const toml::node& element : *node.as_array()) {
        if (!element.is_table()) Fail(element, "\"" + std::string(name) + "\" is a list of tables");
        tables.push_back(element.as_table());
    }
    return tables;
}

void ResourceFile::ExpectOnly(const toml::table& table,
                              std::initializer_list<std::string_view> names) const {
    for (const auto& [key, node] : table) {
        if (std::find(names.begin(), names.end(), key.str()) == names.end()) {
            Fail(node, "\"" + std::string(key.str()) + "\" is not known");
        }
    }
}

void ResourceFile::Fail(const toml::node& where, const std::string& what) const {
    throw ErrorAt(fName, where.source(), what);
}

Definitions::Definitions(fs::path resources) : folder(std::move(resources)) {
    for (const fs::path& path : ResourceFilesIn(folder)) files.emplace_back(path);
    if (files.empty())
        throw std::runtime_error("resource file missing: no .toml in " + Utf8FromPath(folder));
}

}  // namespace host
