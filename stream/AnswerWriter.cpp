#include "stream/AnswerWriter.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "text/FontText.h"
#include "text/Hex.h"

namespace linewright {

namespace {

constexpr std::size_t kPiece = 4096;

std::string Quoted(std::string_view utf8) {
    return nlohmann::json(utf8).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

/** The text form of a byte of a font string as it stands within a JSON text. */
struct ByteText {
    std::array<char, 4> characters{};
    std::size_t size = 0;
};

const std::array<ByteText, 256>& ByteTexts() {
    static const auto texts = [] {
        std::array<ByteText, 256> made;
        for (std::size_t byte = 0; byte < made.size(); ++byte) {
            const std::string quoted = Quoted(FontText(std::string(1, static_cast<char>(byte))));
            made[byte].size = quoted.copy(made[byte].characters.data(), quoted.size() - 2, 1);
        }
        return made;
    }();
    return texts;
}

void AppendQuotedFontText(std::string& text, std::string_view fontString) {
    const auto& texts = ByteTexts();
    std::size_t end = text.size();
    text.resize(end + fontString.size() * sizeof(ByteText::characters));
    for (const char byte : fontString) {
        const ByteText& one = texts[static_cast<unsigned char>(byte)];
        std::copy_n(one.characters.begin(), one.characters.size(), text.data() + end);
        end += one.size;
    }
    text.resize(end);
}

}  // namespace

void AnswerWriter::Begin(std::string_view id) {
    text.assign(1, '{');
    if (!id.empty()) text.append("\"id\":").append(id).append(",");
}

void AnswerWriter::LetOut() {
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    text.clear();
}

void AnswerWriter::End() {
    text += "}\n";
    LetOut();
}

void AnswerWriter::Write(std::string_view id, const EncodeAnswer& answer,
                         const AnswerRemarks& remarks) {
    const auto inPieces = [&](auto append) {
        for (std::string_view rest = answer.bytes; !rest.empty();) {
            const std::string_view piece = rest.substr(0, kPiece);
            append(piece);
            rest.remove_prefix(piece.size());
            if (!rest.empty()) LetOut();
        }
    };
    Begin(id);
    text.append("\"status\":").append(std::to_string(answer.status));
    text.append(answer.isRecognised ? ",\"recognised\":true" : ",\"recognised\":false");
    text += ",\"hex\":\"";
    inPieces([this](std::string_view piece) { text += ToHex(piece); });
    text += "\",\"text\":\"";
    inPieces([this](std::string_view piece) { AppendQuotedFontText(text, piece); });
    text.append("\",\"hint\":").append(answer.hint.empty() ? "\"\"" : Quoted(answer.hint));
    if (!remarks.note.empty()) text.append(",\"note\":").append(Quoted(remarks.note));
    if (remarks.areWarningsWanted) {
        text.append(",\"warnings\":").append(nlohmann::json(remarks.warnings).dump());
    }
    End();
}

void AnswerWriter::WriteError(std::string_view id, std::string_view sentence) {
    Begin(id);
    text.append("\"error\":").append(Quoted(sentence));
    End();
}

}  // namespace linewright
