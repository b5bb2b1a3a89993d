#pragma once

#include <array>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "merge/ByteSink.h"
#include "merge/Encoding.h"
#include "merge/SixteenBytes.h"

namespace linewright {

/** Up to sixteen bytes, which are copied all at once. */
struct ShortText {
    std::array<char, kSixteen> bytes{};
    std::size_t size = 0;

    void Add(char byte) { bytes.at(size++) = byte; }
    std::string_view View() const { return {bytes.data(), size}; }
};

/** What stands in front of and behind the barcode of a row of which there is nothing to say. */
struct PlainResults {
    ShortText front{};
    ShortText behind{};
};

/** Gathers text in UTF-8 into blocks, which are written in the encoding of a file. */
class BlockWriter {
  public:
    /** The sink is borrowed. */
    BlockWriter(ByteSink& borrowed, Encoding encoding);

    void Append(std::string_view text) {
        if (text.size() > kBlock - used) return AppendSlowly(text);
        used += text.copy(block.get() + used, text.size());
    }
    /** Appends a row of which there is nothing to say. Its text and its ending stand in the memory
     *  of a reader, where sixteen bytes more can be read. */
    void AppendRow(std::string_view row, std::string_view barcode, const PlainResults& around,
                   std::string_view ending) {
        const std::size_t size =
            row.size() + around.front.size + barcode.size() + around.behind.size + ending.size();
        if (size > kBlock - used) Flush();
        if (size > kBlock) {
            return AppendPieces({row, around.front.View(), barcode, around.behind.View(), ending});
        }
        char* to = block.get() + used;
        used += size;
        for (std::size_t copied = 0; copied < row.size(); copied += kSixteen) {
            std::memcpy(to + copied, row.data() + copied, kSixteen);
        }
        to += row.size();
        std::memcpy(to, around.front.bytes.data(), kSixteen);
        to += around.front.size;
        std::memcpy(to, barcode.data(), barcode.size());
        to += barcode.size();
        std::memcpy(to, around.behind.bytes.data(), kSixteen);
        to += around.behind.size;
        std::memcpy(to, ending.data(), 2);
    }
    void Append(char character) { Append({&character, 1}); }
    /** Writes what was gathered. */
    void Flush();

    /** Whether the encoding has all characters of a text. */
    bool Has(std::string_view text);
    /** A text with "?" for what the encoding has not. */
    std::string Fitted(std::string_view text);

  private:
    static constexpr std::size_t kBlock = std::size_t{1} << 18;

    void AppendSlowly(std::string_view text);
    void AppendPieces(std::initializer_list<std::string_view> pieces);
    void Write(std::string_view text);

    ByteSink& sink;
    bool isLimited;
    std::optional<Conversion> conversion;
    std::unique_ptr<char[]> block;
    std::size_t used = 0;
    std::string converted;
};

}  // namespace linewright
