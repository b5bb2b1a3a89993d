#pragma once

#include <toml++/toml.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/** The resource files of a folder by name: TOML, or in its place what was compiled from it. */
std::vector<std::filesystem::path> ResourceFilesIn(const std::filesystem::path& folder);

/** A file of a plug-in's resources. What is wrong with it is thrown as std::runtime_error with
 *  file and, for TOML, line. */
class ResourceFile {
  public:
    explicit ResourceFile(const std::filesystem::path& path);

    const toml::table& Root() const { return fRoot; }
    /** What a table holds under a name. */
    const toml::node& Get(const toml::table& table, std::string_view name) const;
    std::string GetText(const toml::table& table, std::string_view name) const;
    /** A number from 1 to 0xFFFFFFFF. */
    uint32_t GetID(const toml::table& table, std::string_view name) const;
    /** The tables of an array. */
    std::vector<const toml::table*> GetTables(const toml::table& table,
                                              std::string_view name) const;
    /** Fails on anything that has another name than these. */
    void ExpectOnly(const toml::table& table, std::initializer_list<std::string_view> names) const;
    [[noreturn]] void Fail(const toml::node& where, const std::string& what) const;

  private:
    std::string fName;
    toml::table fRoot;
};

/** All definitions of a plug-in: the resource files of a folder. */
struct Definitions {
    /** Throws std::runtime_error, also where there are none. */
    explicit Definitions(std::filesystem::path resources);

    std::filesystem::path folder;
    std::vector<ResourceFile> files;
};

}  // namespace host
