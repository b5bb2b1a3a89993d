#include "host/runtime/CompiledResource.h"

#include <charconv>
#include <stdexcept>
#include <string>

namespace host {

namespace {

/** No resource lies deeper. */
constexpr int kDeepest = 16;

class Reader {
  public:
    explicit Reader(std::string_view content) : rest(content) {}

    toml::table ReadAll() {
        Expect('{');
        toml::table table = ReadTable();
        if (!rest.empty()) Fail();
        return table;
    }

  private:
    [[noreturn]] static void Fail() { throw std::runtime_error("a damaged resource file"); }

    bool Accept(char character) {
        if (!rest.starts_with(character)) return false;
        rest.remove_prefix(1);
        return true;
    }
    void Expect(char character) {
        if (!Accept(character)) Fail();
    }

    template <class Number>
    Number ReadNumber(char end) {
        Number number = 0;
        const auto [stop, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        if (error != std::errc()) Fail();
        rest.remove_prefix(static_cast<std::size_t>(stop - rest.data()));
        Expect(end);
        return number;
    }

    std::string ReadText() {
        const auto length = ReadNumber<std::size_t>(':');
        if (length > rest.size()) Fail();
        const std::string_view text = rest.substr(0, length);
        rest.remove_prefix(length);
        return std::string(text);
    }

    /** Hands the next value to `put`, whatever it is. */
    template <class Put>
    void ReadValue(Put put) {
        if (++depth > kDeepest) Fail();
        if (Accept('{')) {
            put(ReadTable());
        } else if (Accept('[')) {
            put(ReadList());
        } else if (Accept('i')) {
            put(ReadNumber<std::int64_t>(';'));
        } else if (Accept('t')) {
            put(true);
        } else if (Accept('f')) {
            put(false);
        } else {
            put(ReadText());
        }
        --depth;
    }

    toml::table ReadTable() {
        toml::table table;
        while (!Accept('}')) {
            std::string name = ReadText();
            ReadValue([&](auto value) { table.insert(std::move(name), std::move(value)); });
        }
        return table;
    }

    toml::array ReadList() {
        toml::array list;
        while (!Accept(']')) ReadValue([&](auto value) { list.push_back(std::move(value)); });
        return list;
    }

    std::string_view rest;
    int depth = 0;
};

}  // namespace

toml::table ReadCompiledResource(std::string_view content) {
    return Reader(content).ReadAll();
}

}  // namespace host
