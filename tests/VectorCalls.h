#pragma once

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace linewright {

/** The input of one row; texts are bytes. */
struct Row {
    std::string call;
    std::string data;
    int check = 0;
    double ratio = 2.0;
    nlohmann::json fields;  // the whole row
};

/** What came of it; what a call does not have stays empty. */
struct Outcome {
    std::optional<int> status{};
    std::optional<std::string> result{};
    std::optional<std::string> hint{};
    std::optional<std::string> humanReadable{};
    std::optional<bool> recognised{};
};

using Call = std::function<Outcome(const Row&)>;
using Calls = std::map<std::string, Call>;

/** Adds functions that rows may call by name. Returns true, for use in a static initialiser. */
bool RegisterCalls(const Calls& calls);
const Calls& RegisteredCalls();

/** The bytes of a text field: each code point below 256 is a byte. An array is joined from texts
 *  and [text, count] pairs. Throws std::runtime_error for anything else. */
std::string BytesOf(const nlohmann::json& field);
/** The reverse: UTF-8 text with a code point a byte. */
std::string TextOf(const std::string& bytes);

}  // namespace linewright
