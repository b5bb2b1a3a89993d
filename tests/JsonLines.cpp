#include "tests/JsonLines.h"

#include <fstream>
#include <set>
#include <stdexcept>

namespace linewright {

namespace {

using nlohmann::json;

json ObjectOf(const std::string& line) {
    std::set<std::string> names;
    const auto refuseTwice = [&names](int depth, json::parse_event_t event, json& name) {
        if (event == json::parse_event_t::key && depth == 1 && !names.insert(name).second)
            throw std::runtime_error("the member " + name.dump() + " stands twice");
        return true;
    };
    json object = json::parse(line, refuseTwice);
    if (!object.is_object()) throw std::runtime_error("no object stands here");
    return object;
}

}  // namespace

std::vector<std::string> LinesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error(file.string() + " cannot be read");
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

bool IsRow(const std::string& line) {
    return !line.empty() && line[0] != '#';
}

std::vector<JsonLine> ReadJsonLines(const std::filesystem::path& file) {
    std::vector<JsonLine> rows;
    int number = 0;
    for (const std::string& line : LinesOf(file)) {
        ++number;
        if (!IsRow(line)) continue;
        try {
            rows.push_back({number, ObjectOf(line)});
        } catch (const std::exception& error) {
            throw std::runtime_error(file.filename().string() + ", line " + std::to_string(number) +
                                     ": " + error.what());
        }
    }
    return rows;
}

std::string NameOf(const JsonLine& row) {
    return "Line" + std::to_string(row.number);
}

void PrintTo(const JsonLine& row, std::ostream* out) {
    *out << row.fields;
}

}  // namespace linewright
