#include "merge/Worker.h"

#include <algorithm>
#include <array>
#include <exception>

namespace linewright {

std::optional<std::uint64_t> ChunkPipe::Next() {
    ChunkHead head;
    char* const bytes = reinterpret_cast<char*>(&head);
    for (std::size_t count = 0; count < sizeof head;) {
        const std::size_t read = pipe.Read(bytes + count, sizeof head - count);
        if (read == 0) return std::nullopt;
        count += read;
    }
    left = head.size;
    return head.line;
}

std::size_t ChunkPipe::Read(char* block, std::size_t capacity) {
    if (left == 0) return 0;
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(left, capacity));
    const std::size_t count = pipe.Read(block, wanted);
    left -= count;
    return count;
}

void AnswerPipe::Send(FrameKind kind, std::string_view bytes, std::uint64_t line) {
    const FrameHead head{kind, line, bytes.size()};
    pipe.Write({reinterpret_cast<const char*>(&head), sizeof head});
    pipe.Write(bytes);
}

void AnswerPipe::SendFailure(Language language, const std::function<void()>& work) {
    std::string sentence;
    try {
        return work();
    } catch (const RequestFailure& failure) {
        sentence = Sentence(failure, language);
    } catch (const DrawingFailure& failure) {
        sentence = Sentence(failure, language);
    } catch (const std::exception& failure) {
        sentence = failure.what();
    }
    Send(FrameKind::kFailure, sentence);
    // Who gives the chunks learns of it when it is their turn; until then it gives more.
    std::array<char, 4096> rest;
    while (pipe.Read(rest.data(), rest.size()) > 0) continue;
}

}  // namespace linewright
