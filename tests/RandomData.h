#pragma once

#include <random>
#include <string>
#include <string_view>

namespace linewright {

/** Random valid data, the same at every run. */
class RandomData {
  public:
    explicit RandomData(unsigned seed) : random(seed) {}

    std::size_t Number(std::size_t least, std::size_t most) {
        return least + random() % (most - least + 1);
    }
    std::string Text(std::string_view characters, std::size_t length) {
        std::string text;
        while (text.size() < length) text += characters[Number(0, characters.size() - 1)];
        return text;
    }
    std::string Digits(std::size_t length) { return Text("0123456789", length); }
    /** Bytes from `first` to `last`. */
    std::string Bytes(int first, int last, std::size_t length) {
        std::string text;
        while (text.size() < length) {
            text += static_cast<char>(
                first + static_cast<int>(Number(0, static_cast<std::size_t>(last - first))));
        }
        return text;
    }

  private:
    std::mt19937 random;
};

}  // namespace linewright
