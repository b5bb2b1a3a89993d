#include "core/FixedText.h"
#include "current/Codabar.h"
#include "current/Code128Auto.h"
#include "current/Code128PreParse.h"
#include "current/Code39.h"
#include "current/Ean13.h"
#include "current/Ean8.h"
#include "current/Interleaved2of5.h"
#include "current/Msi.h"
#include "current/Postnet.h"
#include "current/UpcA.h"
#include "current/UpcE.h"
#include "tests/VectorCalls.h"

namespace linewright {

namespace {

/** The row's text for a builder; `"missing": true` stands for no text at all. */
std::string_view Data(const Row& row) {
    return row.fields.Value("missing", false) ? std::string_view() : row.data.c_str();
}

/** A call of a builder; its text is compared where it succeeds. */
template <std::size_t Capacity>
Call Build(int16 (*build)(const Row& row, TextArea& symbol)) {
    return [build](const Row& row) {
        FixedText<Capacity> symbol;
        const int16 status = build(row, symbol);
        return Outcome{.status = status, .result = std::string(symbol.View())};
    };
}

const bool kRegistered = RegisterCalls({
    {"BuildEan13", Build<kLongestEan13>([](const Row& row, TextArea& symbol) {
         return BuildEan13(Data(row), symbol);
     })},
    {"BuildEan8", Build<kLongestEan8>([](const Row& row, TextArea& symbol) {
         return BuildEan8(Data(row), symbol);
     })},
    {"BuildUpcA", Build<kLongestUpcA>([](const Row& row, TextArea& symbol) {
         return BuildUpcA(Data(row), symbol);
     })},
    {"BuildUpcE", Build<kLongestUpcA>([](const Row& row, TextArea& symbol) {
         return BuildUpcE(Data(row), symbol);
     })},
    {"BuildCode128Auto", Build<kCode128AutoCapacity>([](const Row& row, TextArea& symbol) {
         return BuildCode128Auto(Data(row), row.fields.Value("escapes", false), symbol);
     })},
    {"Code128PreParse",
     [](const Row& row) {
         FixedText<kMaxBuilderText> parsed;
         Code128PreParse(row.data, parsed);
         return Outcome{.status = HasEscapes(row.data), .result = std::string(parsed.View())};
     }},
    {"BuildCode39Current", Build<kCode39Capacity>([](const Row& row, TextArea& symbol) {
         return BuildCode39Current(Data(row), row.ratio, row.check != 0, symbol);
     })},
    {"BuildCodabarCurrent", Build<kCodabarCapacity>([](const Row& row, TextArea& symbol) {
         const std::string start = row.fields.Value("start", std::string("A"));
         const std::string stop = row.fields.Value("stop", std::string("B"));
         return BuildCodabarCurrent(Data(row), row.ratio, start.c_str(), stop.c_str(), symbol);
     })},
    {"BuildInterleaved2of5Current",
     Build<kInterleaved2of5Capacity>([](const Row& row, TextArea& symbol) {
         return BuildInterleaved2of5Current(Data(row), row.ratio, row.check != 0, symbol);
     })},
    {"BuildMsiCurrent", Build<kMsiCapacity>([](const Row& row, TextArea& symbol) {
         return BuildMsiCurrent(Data(row), row.ratio, row.check != 0, symbol);
     })},
    {"MsiCheckDigit",
     [](const Row& row) {
         return Outcome{.result = std::string(MsiCheckDigit(row.data.c_str()))};
     }},
    {"BuildPostnetCurrent", Build<kPostnetCapacity>([](const Row& row, TextArea& symbol) {
         return BuildPostnetCurrent(Data(row), row.check != 0, symbol);
     })},
});

}  // namespace

}  // namespace linewright
