#pragma once

#include <array>
#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace linewright::web {

/** Writes JSON, a member at a time. Texts are UTF-8. */
class Json {
  public:
    explicit Json(std::string& destination) : text(destination) {}

    void Open(char bracket) {
        Separate();
        text += bracket;
        isFirst = true;
    }
    void Close(char bracket) {
        text += bracket;
        isFirst = false;
    }
    void Name(std::string_view name) {
        Value(name);
        text += ':';
        isFirst = true;
    }
    void Value(std::string_view value) {
        Separate();
        text += '"';
        for (const char byte : value) Escape(byte);
        text += '"';
    }
    /** What is JSON already: a number, true, null. */
    void Plain(std::string_view value) {
        Separate();
        text += value;
    }

    void Member(std::string_view name, std::string_view value) {
        Name(name);
        Value(value);
    }
    void PlainMember(std::string_view name, std::string_view value) {
        Name(name);
        Plain(value);
    }
    void FlagMember(std::string_view name, bool isTrue) {
        PlainMember(name, isTrue ? "true" : "false");
    }

  private:
    void Separate() {
        if (!isFirst) text += ',';
        isFirst = false;
    }
    void Escape(char byte) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        if (byte == '"' || byte == '\\') {
            text += '\\';
            text += byte;
        } else if (static_cast<unsigned char>(byte) < ' ') {
            text += "\\u00";
            text += kDigits[static_cast<std::size_t>(byte) / 16];
            text += kDigits[static_cast<std::size_t>(byte) % 16];
        } else {
            text += byte;
        }
    }

    std::string& text;
    bool isFirst = true;
};

}  // namespace linewright::web
