#pragma once

#include <cstddef>
#include <string>
#include <string_view>

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
        std::size_t written = 0;
        for (std::size_t place = 0; place < value.size(); ++place) {
            if (!IsEscaped(value[place])) continue;
            text.append(value, written, place - written);
            Escape(value[place]);
            written = place + 1;
        }
        text.append(value, written).append(1, '"');
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
    static bool IsEscaped(char byte) {
        return byte == '"' || byte == '\\' || static_cast<unsigned char>(byte) < ' ';
    }
    void Escape(char byte) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        const auto number = static_cast<std::size_t>(byte);
        text.append("\\u00").append(1, kDigits[number / 16]).append(1, kDigits[number % 16]);
    }

    std::string& text;
    bool isFirst = true;
};

}  // namespace linewright::web
