#pragma once

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>

namespace linewright {

/** The members of a row, which notes the ones that are asked for. */
class RowFields {
  public:
    explicit RowFields(nlohmann::json row) : object(std::move(row)) {}

    bool Contains(const std::string& name) const {
        asked.insert(name);
        return object.contains(name);
    }
    /** Throws where there is no such member. */
    const nlohmann::json& At(const std::string& name) const {
        asked.insert(name);
        return object.at(name);
    }
    template <typename T>
    T Value(const std::string& name, const T& otherwise) const {
        return Contains(name) ? object.at(name).get<T>() : otherwise;
    }
    /** The members that nobody asked for, each in quotes. */
    std::string Unread() const;

  private:
    nlohmann::json object;
    mutable std::set<std::string> asked;
};

/** The input of one row; texts are bytes. */
struct Row {
    std::string call;
    std::string data;
    int check = 0;
    double ratio = 2.0;
    RowFields fields;  // the whole row
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
