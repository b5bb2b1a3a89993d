#pragma once

#include <cassert>
#include <cstddef>
#include <string_view>

namespace linewright {

/** Text under construction in an area of fixed capacity that somebody else owns. The capacity is
 *  chosen from the longest text that can be asked for, so running out is a mistake in the code. */
class TextArea {
  public:
    TextArea(const TextArea&) = delete;
    TextArea& operator=(const TextArea&) = delete;

    void Append(char character) {
        assert(size < capacity);
        if (size < capacity) area[size++] = character;
    }
    void Append(std::string_view text) {
        for (const char character : text) Append(character);
    }
    void Append(std::size_t count, char character) {
        for (std::size_t i = 0; i < count; ++i) Append(character);
    }
    void Clear() { size = 0; }

    std::string_view View() const { return {area, size}; }

  protected:
    TextArea(char* textArea, std::size_t textCapacity) : area(textArea), capacity(textCapacity) {}
    ~TextArea() = default;

  private:
    char* area;
    std::size_t capacity;
    std::size_t size = 0;
};

/** A TextArea with its storage, for the stack. */
template <std::size_t Capacity>
class FixedText final : public TextArea {
  public:
    FixedText() : TextArea(storage, Capacity) {}

  private:
    char storage[Capacity];
};

}  // namespace linewright
