#include "merge/BlockWriter.h"

#include <algorithm>

#include "merge/OutputFailure.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 128; });
}

}  // namespace

void StreamSink::Write(std::string_view bytes) {
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush()) throw OutputFailure("standard output could not be written to its end");
}

BlockWriter::BlockWriter(ByteSink& borrowed, Encoding encoding)
    : sink(borrowed),
      isLimited(!HasAllCharacters(encoding)),
      block(new char[kBlock + 2 * kSixteen]) {
    if (encoding != Encoding::kUtf8) conversion.emplace(Encoding::kUtf8, encoding);
}

void BlockWriter::Flush() {
    Write({block.get(), used});
    used = 0;
}

void BlockWriter::AppendSlowly(std::string_view text) {
    Flush();
    while (text.size() > kBlock) {
        // What follows begins with a character.
        std::size_t count = kBlock;
        while ((static_cast<unsigned char>(text[count]) & 0xC0) == 0x80) --count;
        Write(text.substr(0, count));
        text.remove_prefix(count);
    }
    Append(text);
}

void BlockWriter::AppendPieces(std::initializer_list<std::string_view> pieces) {
    for (const std::string_view piece : pieces) Append(piece);
}

void BlockWriter::Write(std::string_view text) {
    if (text.empty()) return;
    if (!conversion) return sink.Write(text);
    converted.clear();
    if (!conversion->Convert(text, converted)) {
        throw Failure("text cannot be written in the encoding of the output");
    }
    sink.Write(converted);
}

bool BlockWriter::Has(std::string_view text) {
    return !isLimited || IsAscii(text) || CanHold(*conversion, text);
}

std::string BlockWriter::Fitted(std::string_view text) {
    if (Has(text)) return std::string(text);
    std::string fitted;
    for (const char32_t character : CharactersFromUtf8(text)) {
        std::string one;
        AppendUtf8(one, character);
        fitted += Has(one) ? one : "?";
    }
    return fitted;
}

}  // namespace linewright
