#include "stream/AnswerLines.h"

#include <fmt/format.h>

#include <utility>

#include "merge/Failure.h"
#include "stream/AnswerWriter.h"
#include "stream/LineReader.h"
#include "stream/PlainRequest.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

constexpr std::size_t kMaxLineLength = 64U << 20;
/** Lines up to this length are kept while they are answered. */
constexpr std::size_t kShortLine = 1U << 20;

/** Lines, each with its answer. */
class Answering {
  public:
    Answering(Service& plugIn, std::ostream& out, Language itsLanguage)
        : service(plugIn), writer(out), language(itsLanguage) {}

    void Answer(std::string& line) {
        ++number;
        std::string id;
        try {
            Answer(RequestOf(line, id), id);
        } catch (const Failure& failure) {
            WriteError(id, failure.what());
        } catch (const RequestFailure& failure) {
            WriteError(id, Sentence(failure, language));
        }
    }

    void AnswerTooLong() {
        ++number;
        WriteError("", fmt::format("longer than {} bytes", kMaxLineLength));
    }

    bool wereAllRequests = true;

  private:
    static StreamRequest RequestOf(std::string& line, std::string& id) {
        auto plain = ReadPlainRequest(line, id);
        StreamRequest request = plain ? *std::move(plain) : ParseStreamRequest(line, id);
        if (line.size() > kShortLine) std::string().swap(line);
        return request;
    }

    void Answer(StreamRequest request, const std::string& id) {
        const BarcodeType* const type = FindTypeByPrefix(request.encode.typeName);
        AnswerRemarks remarks;
        if (request.isArticleNumber && type) {
            ArticleNumber brought = BringToForm(*type, request.encode.data);
            if (brought.data.empty()) throw Failure(Sentence(*brought.finding, language));
            if (brought.finding) remarks.note = Sentence(*brought.finding, language);
            request.encode.data = std::move(brought.data);
            request.encode.checkCharacter = 0;
        }
        if (!request.areWarningsWanted) {
            writer.Write(id, service.Encode(std::move(request.encode)), remarks);
            return;
        }
        remarks.areWarningsWanted = true;
        const EncodeAnswer answer = service.Encode(request.encode);
        if (answer.status == 0 && type) {
            const Meaning meaning = MeaningOf({.type = *type,
                                               .data = request.encode.data,
                                               .isUtf8 = request.encode.isUtf8,
                                               .isCheckWanted = request.encode.checkCharacter != 0,
                                               .fontString = answer.bytes});
            for (const Warning& warning : meaning.warnings) {
                remarks.warnings.push_back(Sentence(warning, language));
            }
        }
        writer.Write(id, answer, remarks);
    }

    void WriteError(const std::string& id, std::string_view sentence) {
        wereAllRequests = false;
        writer.WriteError(id, fmt::format("line {}: {}", number, sentence));
    }

    Service& service;
    AnswerWriter writer;
    Language language;
    std::size_t number = 0;
};

}  // namespace

bool AnswerLines(Service& service, std::istream& in, std::ostream& out, Language language) {
    LineReader reader(in, out);
    Answering answering(service, out, language);
    std::string line;
    for (;;) {
        switch (reader.Next(line, kMaxLineLength)) {
            case LineReader::Result::kEnd: return answering.wereAllRequests;
            case LineReader::Result::kLine: answering.Answer(line); break;
            case LineReader::Result::kTooLong: answering.AnswerTooLong(); break;
        }
    }
}

}  // namespace linewright
