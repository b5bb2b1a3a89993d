#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace linewright {

/** One row of a file of JSON lines. */
struct JsonLine {
    /** From 1. */
    int number;
    nlohmann::json fields;
};

/** The lines of a file, without their ends. Throws std::runtime_error where it cannot be read. */
std::vector<std::string> LinesOf(const std::filesystem::path& file);

/** Blank lines and those that begin with # are none. */
bool IsRow(const std::string& line);

/** The rows of a file, each a JSON object. Throws std::runtime_error that names file and line of
 *  one that is none, or that has a member twice. */
std::vector<JsonLine> ReadJsonLines(const std::filesystem::path& file);

/** A row's name as a test, "Line12". */
std::string NameOf(const JsonLine& row);
inline std::string NameOfParameter(const testing::TestParamInfo<JsonLine>& info) {
    return NameOf(info.param);
}

/** How GoogleTest shows a row. */
void PrintTo(const JsonLine& row, std::ostream* out);

}  // namespace linewright
