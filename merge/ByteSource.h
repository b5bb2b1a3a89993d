#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>

namespace linewright {

/** Bytes in their order. */
class ByteSource {
  public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    /** Puts the next ones into `block`, at least one and at most `capacity`; 0 at the end. Throws
     *  Failure where they cannot be read. */
    virtual std::size_t Read(char* block, std::size_t capacity) = 0;
};

/** Called before a program waits for what is not there yet. */
using BeforeWaiting = std::function<void()>;

/** What a stream holds, taken as it comes: the program waits only where nothing is at hand. */
class StreamSource : public ByteSource {
  public:
    /** The stream is borrowed; it ends after so many bytes, where a number is stated. */
    StreamSource(std::istream& borrowed, BeforeWaiting beforeWaiting,
                 std::optional<std::uint64_t> length = std::nullopt)
        : stream(borrowed), isAboutToWait(std::move(beforeWaiting)), left(length) {}

    std::size_t Read(char* block, std::size_t capacity) override;
    /** How many bytes were read. */
    std::uint64_t Position() const { return position; }

  private:
    std::istream& stream;
    BeforeWaiting isAboutToWait;
    std::optional<std::uint64_t> left;
    std::uint64_t position = 0;
};

/** Opens a file by its UTF-8 name. Throws Failure, which names it. */
std::unique_ptr<std::istream> OpenInput(const std::string& name);

/** How many bytes a stream holds from where it stands; none for one that cannot be told, as a
 *  pipe's. */
std::optional<std::uint64_t> LengthOf(std::istream& stream);

}  // namespace linewright
