#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "requests/Service.h"

namespace linewright {

/** What an answer has beyond the plug-in's own, where it was asked for. */
struct AnswerRemarks {
    /** What was made of an article number; "" for nothing. */
    std::string note{};
    bool areWarningsWanted = false;
    std::vector<std::string> warnings{};
};

/** Writes answers as JSON objects, one a line, in pieces: a long font string is there once. */
class AnswerWriter {
  public:
    /** The stream is borrowed. */
    explicit AnswerWriter(std::ostream& stream) : out(stream) {}

    /** `id` is JSON text, or "" for none. */
    void Write(std::string_view id, const EncodeAnswer& answer, const AnswerRemarks& remarks);
    void WriteError(std::string_view id, std::string_view sentence);

  private:
    void Begin(std::string_view id);
    void End();
    void LetOut();

    std::ostream& out;
    std::string text;
};

}  // namespace linewright
