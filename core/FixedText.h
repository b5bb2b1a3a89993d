#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "core/Word.h"

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
        assert(text.size() <= capacity - size);
        const std::size_t count = std::min(text.size(), capacity - size);
        if (count > 0) std::memcpy(area + size, text.data(), count);
        size += count;
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
    friend class LetterWriter;

    char* area;  // a word longer than the capacity
    std::size_t capacity;
    std::size_t size = 0;
};

/** Writes at the end of a text, which has what was written once the writer is gone; until then
 *  nobody else appends. Several letters that are known as a word cost no more than one. */
class LetterWriter {
  public:
    explicit LetterWriter(TextArea& writtenText)
        : text(writtenText), next(text.area + text.size), end(text.area + text.capacity) {}
    LetterWriter(const LetterWriter&) = delete;
    LetterWriter& operator=(const LetterWriter&) = delete;
    ~LetterWriter() { text.size = static_cast<std::size_t>(next - text.area); }

    /** The first `count` bytes of a word. */
    void Append(Word letters, std::size_t count) {
        assert(count <= Room());
        if (count > Room()) return;
        std::memcpy(next, &letters, kWordSize);
        next += count;
    }
    void Append(char letter) { Append(static_cast<unsigned char>(letter), 1); }

  private:
    std::size_t Room() const { return static_cast<std::size_t>(end - next); }

    TextArea& text;
    char* next;
    char* end;
};

/** A TextArea with its storage, for the stack. */
template <std::size_t Capacity>
class FixedText final : public TextArea {
  public:
    FixedText() : TextArea(storage, Capacity) {}

  private:
    char storage[Capacity + kWordSize];
};

}  // namespace linewright
