#include "tests/VectorCalls.h"

#include <stdexcept>

namespace linewright {

namespace {

Calls& AllCalls() {
    static Calls calls;
    return calls;
}

std::string Narrow(const std::string& utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte >= 0xC4) throw std::runtime_error("a code point above 255 in: " + utf8);
        if (byte < 0x80) {
            bytes += utf8[i];
        } else {
            bytes += static_cast<char>(((byte & 0x03) << 6) | (utf8[++i] & 0x3F));
        }
    }
    return bytes;
}

}  // namespace

std::string RowFields::Unread() const {
    std::string names;
    for (const auto& [name, value] : object.items())
        if (!asked.contains(name)) names += '"' + name + "\" ";
    return names;
}

bool RegisterCalls(const Calls& calls) {
    AllCalls().insert(calls.begin(), calls.end());
    return true;
}

const Calls& RegisteredCalls() {
    return AllCalls();
}

std::string BytesOf(const nlohmann::json& field) {
    if (field.is_string()) return Narrow(field.get<std::string>());
    std::string bytes;
    for (const auto& part : field) {
        const bool isRepeated = part.is_array();
        const std::string text = Narrow((isRepeated ? part.at(0) : part).get<std::string>());
        for (int i = isRepeated ? part.at(1).get<int>() : 1; i > 0; --i) bytes += text;
    }
    return bytes;
}

std::string TextOf(const std::string& bytes) {
    std::string text;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            text += character;
        } else {
            text += static_cast<char>(0xC0 | (byte >> 6));
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return text;
}

}  // namespace linewright
